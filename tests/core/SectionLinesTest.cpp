#include "session/EqualDivision.h"

#include <gtest/gtest.h>

namespace sw {
namespace {

std::vector<i16> positions(int pixels, int sections) {
    return EqualPositions(static_cast<float>(pixels) * 15.0f, static_cast<i16>(sections));
}

TEST(EqualPositions, FollowTheRunningSumRoundedHalfToEven) {
    EXPECT_EQ(positions(100, 3), (std::vector<i16>{33, 67}));
    EXPECT_EQ(positions(100, 7), (std::vector<i16>{14, 29, 43, 57, 71, 86}));
    EXPECT_EQ(positions(10, 4), (std::vector<i16>{2, 5, 8}));
    EXPECT_EQ(positions(5, 2), (std::vector<i16>{2}));
    EXPECT_EQ(positions(7, 2), (std::vector<i16>{4}));
}

TEST(EqualPositions, OnePixelSectionsPassAndSmallerOnesAreRefused) {
    const std::vector<i16> hundred = positions(100, 100);
    ASSERT_EQ(hundred.size(), 99u);
    for (int i = 0; i < 99; ++i) {
        EXPECT_EQ(hundred[static_cast<std::size_t>(i)], i + 1);
    }
    EXPECT_TRUE(positions(100, 101).empty());
}

} // namespace
} // namespace sw
