#include "session/EqualDivision.h"

#include "common/Types.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

float twips(int pixels) {
    return static_cast<float>(pixels) * kTwipsPerPixel;
}

std::vector<i16> positions(int pixels, int sections) {
    return EqualPositions(twips(pixels), static_cast<i16>(sections));
}

TEST(EqualPositions, FollowTheRunningSumRoundedHalfToEven) {
    EXPECT_EQ(positions(100, 3), (std::vector<i16>{33, 67}));
    EXPECT_EQ(positions(100, 7), (std::vector<i16>{14, 29, 43, 57, 71, 86}));
    EXPECT_EQ(positions(10, 4), (std::vector<i16>{2, 5, 8}));
    EXPECT_EQ(positions(5, 2), (std::vector<i16>{2}));
    EXPECT_EQ(positions(7, 2), (std::vector<i16>{4}));
}

TEST(EqualPositions, OnePixelSectionsHaveALineOnEveryPixel) {
    const std::vector<i16> hundred = positions(100, 100);
    ASSERT_EQ(hundred.size(), 99u);
    for (int i = 0; i < 99; ++i) {
        EXPECT_EQ(hundred[static_cast<std::size_t>(i)], i + 1);
    }
}

// The one refusal of sections below a pixel: exactly one pixel a section
// passes in both directions, one section more is refused with the
// direction's own text.
TEST(CountSections, RefusesSectionsBelowOnePixelAndNoLarger) {
    const SectionCount rows = CountSections("100", Direction::Horizontal, twips(100));
    EXPECT_FALSE(rows.refusal);
    EXPECT_EQ(rows.sections, 100);
    EXPECT_FALSE(CountSections("300", Direction::Vertical, twips(300)).refusal);

    const SectionCount tooManyRows = CountSections("101", Direction::Horizontal, twips(100));
    ASSERT_TRUE(tooManyRows.refusal);
    EXPECT_EQ(*tooManyRows.refusal, "Number of Sections exceed the actual height of the picture!");
    const SectionCount tooManyColumns = CountSections("301", Direction::Vertical, twips(300));
    ASSERT_TRUE(tooManyColumns.refusal);
    EXPECT_EQ(*tooManyColumns.refusal,
              "Number of Sections exceed the actual width of the picture!");
}

} // namespace
} // namespace sw
