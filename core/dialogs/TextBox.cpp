#include "dialogs/TextBox.h"

#include <algorithm>

namespace sw {
namespace {

constexpr i16 kBackspace = 8;

} // namespace

std::string TextBox::SelText() const {
    const int length = static_cast<int>(Text.size());
    const int start = std::clamp(SelStart, 0, length);
    return Text.substr(static_cast<std::size_t>(start),
                       static_cast<std::size_t>(std::clamp(SelLength, 0, length - start)));
}

void TextBox::SelectAll() {
    SelStart = 0;
    SelLength = static_cast<int>(Text.size());
}

void TextBox::TypeKey(i16 keyAscii) {
    const int length = static_cast<int>(Text.size());
    int start = std::clamp(SelStart, 0, length);
    int count = std::clamp(SelLength, 0, length - start);
    if (keyAscii == kBackspace && count == 0 && start > 0) {
        --start;
        count = 1;
    }
    Text.erase(static_cast<std::size_t>(start), static_cast<std::size_t>(count));
    if (keyAscii != kBackspace) {
        Text.insert(static_cast<std::size_t>(start), 1, static_cast<char>(keyAscii));
        ++start;
    }
    SelStart = start;
    SelLength = 0;
}

} // namespace sw
