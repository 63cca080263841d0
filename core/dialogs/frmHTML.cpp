#include "dialogs/frmHTML.h"

#include "ports/Clipboard.h"

namespace sw {

void frmHTML::cmdClip_Click() {
    rtxtHTML.SelStart = 0;
    rtxtHTML.SelLength = rtxtHTML.Text.size();
    clipboard_.Clear();
    clipboard_.SetText(rtxtHTML.SelText());
    // No selection is left behind, and nothing confirms the copy.
    rtxtHTML.SelStart = 0;
    rtxtHTML.SelLength = 0;
}

void frmHTML::cmdClose_Click() {
    rtxtHTML = RichTextBox{};
    loaded_ = false;
}

} // namespace sw
