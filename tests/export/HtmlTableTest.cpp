#include "export/HtmlTable.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

SectionCells cellsNamed(int count) {
    SectionCells cells;
    cells.ReDimPreserve(count);
    for (int i = 1; i <= count; ++i) {
        cells(i) = "c" + std::to_string(i);
    }
    return cells;
}

// The table's lines with every cell line shown as "c<n>" and the fixed lines
// shortened to T, R, /R and /T.
std::string shape(const std::vector<std::string>& lines) {
    std::string out;
    for (const std::string& line : lines) {
        if (line == "<TABLE CELLSPACING=0 CELLPADDING=0 BORDER=0>") {
            out += "T ";
        } else if (line == "  <TR ALIGN=LEFT VALIGN=TOP>") {
            out += "R ";
        } else if (line == "  </TR>") {
            out += "/R ";
        } else if (line == "</TABLE>") {
            out += "/T";
        } else {
            out += (line.rfind("    ", 0) == 0 ? line.substr(4) : "?" + line) + " ";
        }
    }
    return out;
}

TEST(BuildTableLines, RowsFollowTheGridAndNoEmptyRowArises) {
    const struct {
        int cells;
        int columns;
        const char* shape;
    } cases[] = {
        {1, 1, "T R c1 /R /T"},
        {3, 1, "T R c1 /R R c2 /R R c3 /R /T"},
        {3, 3, "T R c1 c2 c3 /R /T"},
        {10, 2, "T R c1 c2 /R R c3 c4 /R R c5 c6 /R R c7 c8 /R R c9 c10 /R /T"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(shape(BuildTableLines(cellsNamed(c.cells), c.columns)), c.shape);
    }
}

TEST(TableText, ClosesEveryLineWithCarriageReturnAndLineFeed) {
    SectionCells cells;
    cells.ReDimPreserve(1);
    cells(1) = CellText("my tile1.jpg");
    EXPECT_EQ(TableText(BuildTableLines(cells, 1)),
              "<TABLE CELLSPACING=0 CELLPADDING=0 BORDER=0>\r\n"
              "  <TR ALIGN=LEFT VALIGN=TOP>\r\n"
              "    <TD VALIGN=TOP ALIGN=LEFT><IMG SRC=\"my tile1.jpg\" BORDER=0></TD>\r\n"
              "  </TR>\r\n"
              "</TABLE>\r\n");
}

} // namespace
} // namespace sw
