#pragma once

#include <cstddef>
#include <string>

namespace sw {

// The text and selection of a multi-line text control.
class RichTextBox {
public:
    std::string Text;
    std::size_t SelStart = 0;
    std::size_t SelLength = 0;

    // The selected part of Text, cut at its end.
    std::string SelText() const;
};

} // namespace sw
