#include "dialogs/frmJPGComp.h"

#include "common/Numbers.h"
#include "dialogs/NumericKeyFilter.h"
#include "session/Session.h"
#include "session/Settings.h"

#include <string>

namespace sw {

void frmJPGComp::Form_Load() {
    txtJPGComp.Text = std::to_string(session_.state.JPGComp);
}

void frmJPGComp::txtJPGComp_KeyPress(i16& KeyAscii) {
    KeyAscii = NumericKeyFilter(txtJPGComp, KeyAscii, false, false, false, 0);
}

void frmJPGComp::PressKey(i16 keyAscii) {
    txtJPGComp_KeyPress(keyAscii);
    if (keyAscii != 0) {
        txtJPGComp.TypeKey(keyAscii);
    }
}

// An empty box or a number beyond 16 bits is refused like any value out of
// range: the dialog stays open and the user can correct the text.
void frmJPGComp::cmdOK_Click() {
    const Converted<i16> quality = TextToInteger(txtJPGComp.Text);
    if (!quality.ok() || quality.value > 100 || quality.value <= 0) {
        session_.ports.boxes.Show(
            {"Incorrect Value",
             "JPG Compression values must be greater than zero and less than 100",
             BoxIcon::Exclamation, BoxButtons::OK, BoxResult::OK});
        return;
    }
    session_.state.JPGComp = quality.value;
    closed_ = true;
}

void frmJPGComp::cmdCancel_Click() {
    closed_ = true;
}

void frmJPGComp::cmdReset_Click() {
    session_.state.JPGComp = kDefaultJpgQuality;
    closed_ = true;
}

} // namespace sw
