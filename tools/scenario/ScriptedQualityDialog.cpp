#include "tools/scenario/ScriptedQualityDialog.h"

#include "dialogs/frmJPGComp.h"
#include "tools/scenario/QuotedControls.h"

namespace sw::scripted {

void ScriptedQualityDialog::typeKeys(frmJPGComp& form, const std::string& keys) {
    form.txtJPGComp.SelectAll();
    for (const char key : keys) {
        form.PressKey(static_cast<i16>(static_cast<unsigned char>(key)));
    }
    transcript_.Line("jpgcomp type " + QuoteWithControls(keys) +
                     " -> text=" + QuoteWithControls(form.txtJPGComp.Text));
}

void ScriptedQualityDialog::press(frmJPGComp& form, const std::string& button) {
    transcript_.Line("jpgcomp press " + button);
    if (button == "OK") {
        form.cmdOK_Click();
    } else if (button == "Cancel") {
        form.cmdCancel_Click();
    } else if (button == "Reset") {
        form.cmdReset_Click();
    } else {
        throw ScriptError("the quality dialog has no button \"" + button +
                          "\" (OK, Cancel or Reset)");
    }
}

void ScriptedQualityDialog::ShowJpgComp(frmJPGComp& form) {
    const std::string shown = "jpgcomp show text=" + QuoteWithControls(form.txtJPGComp.Text);
    transcript_.Line(shown);
    while (!form.Closed()) {
        const Answers::Tokens answer = answers_.TakeTokens("jpgcomp", shown);
        if (answer.size() != 2) {
            throw ScriptError("usage: answer jpgcomp \"KEYS\" OK|Cancel|Reset");
        }
        typeKeys(form, answer[0]);
        press(form, answer[1]);
    }
    transcript_.Line("jpgcomp closed");
}

} // namespace sw::scripted
