#include "dialogs/RichTextBox.h"

namespace sw {

std::string RichTextBox::SelText() const {
    if (SelStart >= Text.size()) {
        return {};
    }
    return Text.substr(SelStart, SelLength);
}

} // namespace sw
