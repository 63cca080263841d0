#include "dialogs/frmFinish.h"

namespace sw {

void frmFinish::Form_Load() {
    // Every showing loads the form anew, with optNo selected from creation; a
    // value other than the three leaves it so while OutputType keeps that value.
    optScreen = OutputType == "S";
    optFile = OutputType == "F";
    optNo = !optScreen && !optFile;
    lblStatus = StatusCaption;
    loaded_ = true;
}

void frmFinish::select(bool& option, const char* letter) {
    optScreen = false;
    optFile = false;
    optNo = false;
    option = true;
    // The letter changes at the click, not at Continue.
    OutputType = letter;
}

void frmFinish::optScreen_Click() {
    select(optScreen, "S");
}
void frmFinish::optFile_Click() {
    select(optFile, "F");
}
void frmFinish::optNo_Click() {
    select(optNo, "N");
}

void frmFinish::cmdContinue_Click() {
    loaded_ = false;
}

} // namespace sw
