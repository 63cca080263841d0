#pragma once

#include "ports/QualityDialog.h"
#include "tools/scenario/Answers.h"
#include "tools/scenario/Transcript.h"

namespace sw::scripted {

// The quality dialog driven by the script: each answer
// `answer jpgcomp "KEYS" OK|Cancel|Reset` selects the whole box, types the
// keys one by one through the form's key filter and presses the button.
// While the form stays open, the next answer goes on in the same dialog.
class ScriptedQualityDialog : public QualityDialog {
public:
    ScriptedQualityDialog(Transcript& transcript, Answers& answers)
        : transcript_(transcript), answers_(answers) {}

    void ShowJpgComp(frmJPGComp& form) override;

private:
    void typeKeys(frmJPGComp& form, const std::string& keys);
    void press(frmJPGComp& form, const std::string& button);
    Transcript& transcript_;
    Answers& answers_;
};

} // namespace sw::scripted
