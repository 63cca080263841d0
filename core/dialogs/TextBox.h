#pragma once

#include "common/Types.h"

#include <string>

namespace sw {

// The state of a one-line text box as key filters see it: the text and the
// selection (SelStart counts characters before the caret, from 0).
struct TextBox {
    std::string Text;
    int SelStart = 0;
    int SelLength = 0;

    std::string SelText() const;
    void SelectAll();
    // What the box itself does with a key that got through: backspace
    // deletes the selection or the character before the caret, any other
    // key replaces the selection.
    void TypeKey(i16 keyAscii);
};

} // namespace sw
