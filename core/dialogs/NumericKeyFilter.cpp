#include "dialogs/NumericKeyFilter.h"

namespace sw {
namespace {

constexpr i16 kBackspace = 8;
constexpr i16 kDropped = 0;

bool holds(const std::string& text, char c) {
    return text.find(c) != std::string::npos;
}

// A minus goes in front only, and only once: typing over a selection that
// holds the one minus there is allowed.
i16 filterMinus(const TextBox& box, i16 keyAscii) {
    const i16 result = box.SelStart > 0 ? kDropped : keyAscii;
    if (holds(box.SelText(), '-')) {
        return result;
    }
    return holds(box.Text, '-') ? kDropped : result;
}

// One point at most, and never in front of the minus sign.
i16 filterPoint(const TextBox& box, i16 keyAscii) {
    const i16 result = !holds(box.SelText(), '.') && holds(box.Text, '.') ? kDropped : keyAscii;
    const bool inFrontOfMinus = box.SelStart == 0 && !box.Text.empty() && box.Text[0] == '-';
    return inFrontOfMinus && box.SelLength == 0 ? kDropped : result;
}

// No digit beyond the allowed places behind the point.
i16 filterDigit(const TextBox& box, i16 keyAscii, i16 decimals) {
    const std::size_t point = box.Text.find('.');
    if (point == std::string::npos || decimals <= 0) {
        return keyAscii;
    }
    const int pointPosition = static_cast<int>(point) + 1;
    return box.SelStart > pointPosition + decimals - 1 ? kDropped : keyAscii;
}

} // namespace

i16 NumericKeyFilter(const TextBox& box, i16 keyAscii, bool allowMinus, bool allowPoint,
                     bool allowComma, i16 decimals) {
    if (keyAscii == kBackspace) {
        return keyAscii;
    }
    if (keyAscii == ',') {
        return allowComma ? keyAscii : kDropped;
    }
    if (keyAscii == '-') {
        return allowMinus ? filterMinus(box, keyAscii) : kDropped;
    }
    if (keyAscii == '.') {
        return allowPoint ? filterPoint(box, keyAscii) : kDropped;
    }
    if (keyAscii >= '0' && keyAscii <= '9') {
        return filterDigit(box, keyAscii, decimals);
    }
    return kDropped;
}

} // namespace sw
