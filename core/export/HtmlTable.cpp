#include "export/HtmlTable.h"

namespace sw {
namespace {

constexpr const char* kTableStart = "<TABLE CELLSPACING=0 CELLPADDING=0 BORDER=0>";
constexpr const char* kRowStart = "  <TR ALIGN=LEFT VALIGN=TOP>";
constexpr const char* kRowEnd = "  </TR>";
constexpr const char* kTableEnd = "</TABLE>";
constexpr const char* kCellIndent = "    ";

} // namespace

std::string CellText(const std::string& cellName) {
    return "<TD VALIGN=TOP ALIGN=LEFT><IMG SRC=\"" + cellName + "\" BORDER=0></TD>";
}

std::string EmptyCellText() {
    return "<TD></TD>";
}

std::vector<std::string> BuildTableLines(const SectionCells& cells, i32 columns) {
    std::vector<std::string> lines{kTableStart, kRowStart};
    const int count = cells.UBound();
    for (int i = 1; i <= count; ++i) {
        lines.push_back(kCellIndent + cells(i));
        // A full row at the last cell closes through the final row end.
        if (columns > 0 && i % columns == 0 && i != count) {
            lines.push_back(kRowEnd);
            lines.push_back(kRowStart);
        }
    }
    lines.push_back(kRowEnd);
    lines.push_back(kTableEnd);
    return lines;
}

std::string TableText(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

} // namespace sw
