#pragma once

#include "ports/ExportDialogs.h"
#include "tools/scenario/Answers.h"
#include "tools/scenario/Transcript.h"

namespace sw::scripted {

// The two dialogs that close an export, clicked through from the script:
// "answer finish N|S|F ..." clicks those options in turn ("keep" clicks none)
// and then Continue; "answer html copy ... close" clicks Copy to Clipboard and
// Close in that order.
class ScriptedExportDialogs : public ExportDialogs {
public:
    ScriptedExportDialogs(Transcript& transcript, Answers& answers)
        : transcript_(transcript), answers_(answers) {}

    void ShowFinish(frmFinish& form) override;
    void ShowHtml(frmHTML& form) override;

private:
    Transcript& transcript_;
    Answers& answers_;
};

} // namespace sw::scripted
