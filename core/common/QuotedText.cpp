#include "common/QuotedText.h"

namespace sw {

std::string QuoteText(std::string_view text) {
    std::string quoted = "\"";
    for (char c : text) {
        switch (c) {
        case '\r':
            quoted += "\\r";
            break;
        case '\n':
            quoted += "\\n";
            break;
        case '\t':
            quoted += "\\t";
            break;
        case '"':
            quoted += "\\\"";
            break;
        case '\\':
            quoted += "\\\\";
            break;
        default:
            quoted += c;
        }
    }
    return quoted + "\"";
}

} // namespace sw
