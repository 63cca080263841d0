#include "tools/scenario/SessionStateDump.h"

#include "common/QuotedText.h"

#include <cstdio>
#include <sstream>

namespace sw::scripted {
namespace {

const char* flag(bool value) {
    return value ? "True" : "False";
}

template <typename T> std::string list(const OneBasedArray<T>& array) {
    std::ostringstream out;
    out << '[';
    for (int i = 1; i <= array.UBound(); ++i) {
        if (i > 1) {
            out << ',';
        }
        if constexpr (std::is_same_v<T, std::string>) {
            out << QuoteText(array(i));
        } else {
            out << array(i);
        }
    }
    out << ']';
    return out.str();
}

std::string hexColor(Color color) {
    char buffer[16];
    std::snprintf(buffer, sizeof buffer, "0x%06X", static_cast<unsigned>(color));
    return buffer;
}

} // namespace

std::string DumpSessionState(const SessionState& s) {
    std::ostringstream out;
    out << "picRight=" << s.picRight << "\npicBottom=" << s.picBottom
        << "\nformRight=" << s.formRight << "\nformBottom=" << s.formBottom
        << "\nrightMargin=" << s.rightMargin << "\nbottomMargin=" << s.bottomMargin
        << "\nformHeightNow=" << s.formHeightNow << "\nformWidthNow=" << s.formWidthNow
        << "\nneededHeight=" << s.neededHeight << "\nneededWidth=" << s.neededWidth
        << "\npicOriginX=" << s.picOriginX << "\npicOriginY=" << s.picOriginY
        << "\nmouseX=" << s.mouseX << "\nmouseY=" << s.mouseY << "\nhLines=" << list(s.hLines)
        << "\nvLines=" << list(s.vLines) << "\nlineOrder=" << list(s.lineOrder)
        << "\nhLineCount=" << s.hLineCount << "\nvLineCount=" << s.vLineCount
        << "\nhDivided=" << flag(s.hDivided) << "\nvDivided=" << flag(s.vDivided)
        << "\nminFormWidth=" << s.minFormWidth << "\nlinesDrawn=" << flag(s.linesDrawn)
        << "\nundoOffered=" << flag(s.undoOffered) << "\nlineColor=" << hexColor(s.lineColor)
        << "\nlastScrollX=" << s.lastScrollX << "\nlastScrollY=" << s.lastScrollY
        << "\nLastOpenDir=" << QuoteText(s.LastOpenDir)
        << "\nLastSaveDir=" << QuoteText(s.LastSaveDir)
        << "\nLastPicture=" << QuoteText(s.LastPicture)
        << "\nSaveFormat=" << QuoteText(s.SaveFormat) << "\nHTMLOut=" << QuoteText(s.HTMLOut)
        << "\nJPGComp=" << s.JPGComp << "\npictureOpen=" << flag(s.pictureOpen) << '\n';
    return out.str();
}

} // namespace sw::scripted
