#pragma once

#include "ports/ExportDialogs.h"
#include "tools/scenario/Answers.h"
#include "tools/scenario/Transcript.h"

namespace sw::scripted {

// The progress of an export, silent unless asked for ("progress show"), and
// the two dialogs that close it, clicked through from the script:
// "answer finish N|S|F ..." clicks those options in turn ("keep" clicks none)
// and then Continue; "answer html copy ... close" clicks Copy to Clipboard and
// Close in that order.
class ScriptedExportDialogs : public ExportDialogs {
public:
    ScriptedExportDialogs(Transcript& transcript, Answers& answers)
        : transcript_(transcript), answers_(answers) {}

    void ShowFinish(frmFinish& form) override;
    void ShowHtml(frmHTML& form) override;
    void BeginProgress(int total) override;
    bool AdvanceProgress(int done, int total, const std::string& fileName) override;
    void EndProgress() override;

    // Whether each section's progress is a transcript line; off unless a
    // script asks, so that transcripts without it do not change.
    bool showProgress = false;
    // The user presses Cancel in the next export once this many sections are
    // through; 0 for never.
    int cancelAt = 0;

private:
    Transcript& transcript_;
    Answers& answers_;
};

} // namespace sw::scripted
