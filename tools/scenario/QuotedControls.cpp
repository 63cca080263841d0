#include "tools/scenario/QuotedControls.h"

#include "common/QuotedText.h"

#include <cstdio>

namespace sw::scripted {

std::string QuoteWithControls(std::string_view text) {
    std::string shown;
    for (const char c : QuoteText(text)) {
        const auto code = static_cast<unsigned char>(c);
        if (code == 8) {
            shown += "\\b";
        } else if (code < 0x20) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02X", static_cast<unsigned>(code));
            shown += escaped;
        } else {
            shown += c;
        }
    }
    return shown;
}

} // namespace sw::scripted
