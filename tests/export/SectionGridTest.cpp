#include "export/SectionGrid.h"

#include "export/SectionArea.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

const CutDestination kTile{"out/", "Tile", ".bmp"};

OneBasedArray<i16> lines(std::initializer_list<i16> positions) {
    OneBasedArray<i16> array(positions);
    if (!array.Allocated()) {
        array.ResetToOneSlot();
    }
    return array;
}

i16 countOf(const OneBasedArray<i16>& array, std::size_t given) {
    return static_cast<i16>(given == 0 ? 0 : array.UBound());
}

// A plan from positions as given (sorted or not), counts from their number.
CutPlan plan(std::initializer_list<i16> h, std::initializer_list<i16> v, float widthTwips,
             float heightTwips, const CutDestination& destination = kTile) {
    const OneBasedArray<i16> hLines = lines(h);
    const OneBasedArray<i16> vLines = lines(v);
    return BuildSectionGrid({hLines, countOf(hLines, h.size())},
                            {vLines, countOf(vLines, v.size())}, widthTwips, heightTwips,
                            destination);
}

TEST(BuildSectionGrid, CutsTheWorkedExampleIntoSixNumberedSections) {
    OneBasedArray<i16> h = lines({120, 50});
    OneBasedArray<i16> v = lines({100});
    SortLines(h, 2);
    SortLines(v, 1);
    const CutPlan cut = BuildSectionGrid({h, 2}, {v, 1}, 4500, 3000, kTile);
    const std::vector<SectionRect> expected = {
        {1, 0, 0, 100, 50, "out/Tile1.bmp", "Tile1.bmp"},
        {2, 100, 0, 200, 50, "out/Tile2.bmp", "Tile2.bmp"},
        {3, 0, 50, 100, 70, "out/Tile3.bmp", "Tile3.bmp"},
        {4, 100, 50, 200, 70, "out/Tile4.bmp", "Tile4.bmp"},
        {5, 0, 120, 100, 80, "out/Tile5.bmp", "Tile5.bmp"},
        {6, 100, 120, 200, 80, "out/Tile6.bmp", "Tile6.bmp"},
    };
    EXPECT_EQ(cut.Columns, 2);
    EXPECT_EQ(cut.Sections, expected);
}

TEST(BuildSectionGrid, NoLinesGiveTheWholePictureAndTheUnusedSlotIsNoLine) {
    OneBasedArray<i16> h;
    h.ResetToOneSlot();
    h(1) = 77; // a stale value in the one slot of an empty array must not become an edge
    const CutPlan cut = BuildSectionGrid({h, 0}, {h, 0}, 4500, 3000, kTile);
    ASSERT_EQ(cut.Sections.size(), 1u);
    EXPECT_EQ(cut.Sections[0], (SectionRect{1, 0, 0, 300, 200, "out/Tile1.bmp", "Tile1.bmp"}));
}

TEST(BuildSectionGrid, LastColumnAndRowComeFromTwipsRoundedHalfToEven) {
    // 4507.5 / 15 = 300.5 -> 300; 3022.5 / 15 = 201.5 -> 202.
    const CutPlan cut = plan({}, {100}, 4507.5f, 3022.5f);
    EXPECT_EQ(cut.Sections[1].Width, 200);
    EXPECT_EQ(cut.Sections[1].Height, 202);
}

TEST(BuildSectionGrid, DegenerateLinesKeepEveryNumberInItsPlace) {
    // Two lines on one place, a line at 0 and one beyond the right edge.
    const CutPlan cut = plan({50, 50}, {0, 350}, 4500, 3000);
    ASSERT_EQ(cut.Sections.size(), 9u);
    EXPECT_EQ(cut.Sections[0].Width, 0);   // column from the edge to the line at 0
    EXPECT_EQ(cut.Sections[1].Width, 350); // reaches past the picture
    EXPECT_EQ(cut.Sections[2].Width, -50); // beyond the edge
    EXPECT_EQ(cut.Sections[4].Height, 0);  // between the two lines at 50
    EXPECT_EQ(cut.Sections[8].Number, 9);
    EXPECT_EQ(SectionsWithoutArea(cut, 300, 200), (std::vector<i32>{1, 3, 4, 5, 6, 7, 9}));
    EXPECT_EQ(PartInsidePicture(cut.Sections[1], 300, 200).Width, 300); // cut at the edge
}

TEST(BuildSectionGrid, UnsortedAndSortedLinesGiveTheSamePlanOnceSorted) {
    OneBasedArray<i16> h = lines({150, 20, 90, 20});
    OneBasedArray<i16> v = lines({250, 10, 120});
    SortLines(h, 4);
    SortLines(v, 3);
    EXPECT_EQ(h, lines({20, 20, 90, 150}));
    EXPECT_EQ(BuildSectionGrid({h, 4}, {v, 3}, 4500, 3000, kTile).Sections,
              plan({20, 20, 90, 150}, {10, 120, 250}, 4500, 3000).Sections);
}

TEST(SortLines, SortsOnlyTheCountedEntries) {
    OneBasedArray<i16> v = lines({30, 10, 5});
    SortLines(v, 2);
    EXPECT_EQ(v, lines({10, 30, 5}));
    SortLines(v, 0);
    EXPECT_EQ(v, lines({10, 30, 5}));
}

TEST(SectionFileName, RunsPastNineWithoutLeadingZeros) {
    const CutPlan cut =
        plan({}, {10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, 4500, 3000, {"", ".bmp", ".jpg"});
    ASSERT_EQ(cut.Sections.size(), 11u);
    EXPECT_EQ(cut.Sections[8].FileName, ".bmp9.jpg");
    EXPECT_EQ(cut.Sections[9].CellName, ".bmp10.jpg");
    EXPECT_EQ(SectionFileName({"/a b/", "x", ".bmp"}, 1234567), "/a b/x1234567.bmp");
}

TEST(NumberList, NamesADozenNumbersAndThenTheTotal) {
    EXPECT_EQ(NumberList({3}), "3");
    EXPECT_EQ(NumberList({3, 4, 9}), "3, 4, 9");
    std::vector<i32> many(20);
    for (int i = 0; i < 20; ++i) {
        many[static_cast<std::size_t>(i)] = i + 1;
    }
    EXPECT_EQ(NumberList(many), "1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, ... (20 in all)");
}

} // namespace
} // namespace sw
