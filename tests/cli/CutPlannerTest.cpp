#include "CutPlanner.h"

#include "export/SectionGrid.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

CutOptions gridOptions(const char* rows, const char* columns) {
    CutOptions options;
    options.source = LineSource::Grid;
    options.gridRows = rows;
    options.gridColumns = columns;
    return options;
}

PlannedLines linesOf(const CutOptions& options, i32 width, i32 height) {
    auto lines = PlanLines(options, width, height, {});
    EXPECT_TRUE(std::holds_alternative<PlannedLines>(lines));
    return std::get<PlannedLines>(lines);
}

TEST(CutPlanner, GridPlacesTheWindowsEqualDivision) {
    // 100 in 7 comes from the running sum in single precision; 10 in 4 rounds
    // 2.5 down and 7.5 up.
    const PlannedLines lines = linesOf(gridOptions("7", "4"), 10, 100);
    EXPECT_EQ(lines.horizontal, (std::vector<i16>{14, 29, 43, 57, 71, 86}));
    EXPECT_EQ(lines.vertical, (std::vector<i16>{2, 5, 8}));
    EXPECT_TRUE(linesOf(gridOptions("1", "1"), 10, 100).horizontal.empty());
}

TEST(CutPlanner, GridRefusesSectionsBelowOnePixel) {
    EXPECT_TRUE(
        std::holds_alternative<PlannedLines>(PlanLines(gridOptions("100", "2"), 10, 100, {})));
    const auto rows = PlanLines(gridOptions("101", "2"), 10, 100, {});
    ASSERT_TRUE(std::holds_alternative<PlanRefusal>(rows));
    EXPECT_NE(std::get<PlanRefusal>(rows).why.find(
                  "Number of Sections exceed the actual height of the picture!"),
              std::string::npos);
    const auto columns = PlanLines(gridOptions("2", "11"), 10, 100, {});
    EXPECT_NE(std::get<PlanRefusal>(columns).why.find("actual width"), std::string::npos);
}

TEST(CutPlanner, TilesLeaveTheRestToTheLastBand) {
    CutOptions options;
    options.source = LineSource::Tile;
    options.tileWidth = 128;
    options.tileHeight = 100;
    const PlannedLines lines = linesOf(options, 300, 200);
    EXPECT_EQ(lines.vertical, (std::vector<i16>{128, 256}));
    // A tile that fits exactly leaves no empty last band.
    EXPECT_EQ(lines.horizontal, (std::vector<i16>{100}));
}

TEST(CutPlanner, LineFileRecordsKeepTheirDirectionsAndOrder) {
    CutOptions options;
    options.source = LineSource::LineFile;
    const ParsedLineFile file = ParseLineFile("\"V120\"\r\n\"h150\"\r\nH40\r\n\"H150\"\r\n");
    const auto fromFile = PlanLines(options, 300, 200, file);
    EXPECT_EQ(std::get<PlannedLines>(fromFile).horizontal, (std::vector<i16>{150, 40, 150}));
    EXPECT_EQ(std::get<PlannedLines>(fromFile).vertical, (std::vector<i16>{120}));
}

TEST(CutPlanner, PiecesFollowTheWindowsPlanAndNames) {
    // The window's own example: 300 x 200, lines at Y 120 and 50, X 100.
    const auto plan = PlanPieces({{120, 50}, {100}}, 300, 200, {"out/", "Tile", ".png"}, {});
    const CutPlan& p = std::get<CutPlan>(plan);
    ASSERT_EQ(p.Sections.size(), 6u);
    EXPECT_EQ(p.Columns, 2);
    EXPECT_EQ(p.Sections[3], (SectionRect{4, 100, 50, 200, 70, "out/Tile4.png", "Tile4.png"}));
    EXPECT_EQ(RowOf(p, p.Sections[3]), 2);
    EXPECT_EQ(ColumnOf(p, p.Sections[3]), 2);
}

TEST(CutPlanner, APatternRenamesEveryPiece) {
    std::string problem;
    const auto pattern = NamePattern::Parse("{base}_{row}_{col:02}", problem);
    const auto plan = PlanPieces({{50}, {100, 200}}, 300, 200, {"o/", "sky", ".jpg"}, pattern);
    const CutPlan& p = std::get<CutPlan>(plan);
    EXPECT_EQ(p.Sections[5].FileName, "o/sky_2_03.jpg");
    EXPECT_EQ(p.Sections[5].CellName, "sky_2_03.jpg");
}

TEST(CutPlanner, RefusesAPatternThatGivesTwoPiecesOneName) {
    std::string problem;
    const auto pattern = NamePattern::Parse("{row}{col}", problem);
    // Row 1, column 11 and row 11, column 1 are both "111".
    PlannedLines lines;
    for (i16 at = 1; at <= 10; ++at) {
        lines.horizontal.push_back(at);
        lines.vertical.push_back(at);
    }
    const auto plan = PlanPieces(lines, 20, 20, {"", "x", ".png"}, pattern);
    ASSERT_TRUE(std::holds_alternative<PlanRefusal>(plan));
    EXPECT_NE(std::get<PlanRefusal>(plan).why.find("111.png"), std::string::npos);
}

TEST(CutPlanner, RefusesMoreSectionsThanNumbersCanName) {
    PlannedLines lines;
    lines.horizontal.assign(4000, 1);
    lines.vertical.assign(4000, 1);
    const auto plan = PlanPieces(lines, 10, 10, {"", "x", ".bmp"}, {});
    ASSERT_TRUE(std::holds_alternative<PlanRefusal>(plan));
    EXPECT_NE(std::get<PlanRefusal>(plan).why.find(std::to_string(kMostSections)),
              std::string::npos);
}

} // namespace
} // namespace sw
