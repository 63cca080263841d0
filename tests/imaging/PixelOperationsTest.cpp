#include "imaging/Clock.h"
#include "imaging/Picture.h"
#include "imaging/RandomSource.h"
#include "imaging/cDIBSection.h"

#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace sw {
namespace {

// Byte `channel` of pixel x in memory row `row` (row 0 is the bottom one).
std::uint8_t byteAt(const cDIBSection& s, int x, int row, int channel) {
    return s.DIBSectionBitsPtr()[row * s.BytesPerScanLine() + 3 * x + channel];
}

void setPixel(cDIBSection& s, int x, int row, std::uint8_t b, std::uint8_t g, std::uint8_t r) {
    std::uint8_t* p = s.DIBSectionBitsPtr() + row * s.BytesPerScanLine() + 3 * x;
    p[0] = b;
    p[1] = g;
    p[2] = r;
}

TEST(Resample, SameSizeIsAnExactCopy) {
    cDIBSection source;
    ASSERT_TRUE(source.Create(5, 3));
    for (int i = 0; i < source.BytesPerScanLine() * 3; ++i) {
        source.DIBSectionBitsPtr()[i] = static_cast<std::uint8_t>(i * 37);
    }
    const auto copy = source.Resample(3, 5);
    ASSERT_NE(copy, nullptr);
    for (int row = 0; row < 3; ++row) {
        EXPECT_EQ(std::memcmp(copy->DIBSectionBitsPtr() + row * 16,
                              source.DIBSectionBitsPtr() + row * 16, 15),
                  0);
    }
}

// 2 x 2 to 4 x 4: both scales are (2 - 1) / 4 = 0.25, so target pixel (x, row)
// samples at dx = x / 4, dy = row / 4 between the same four source pixels.
// Blue and green are linear and come out exact; red is chosen so that each
// rounding (between the passes, and ties to even) changes the outcome.
TEST(Resample, TwoByTwoToFourByFourUsesQuarterStepsAndRoundsBetweenPasses) {
    cDIBSection source;
    ASSERT_TRUE(source.Create(2, 2));
    setPixel(source, 0, 0, 10, 0, 0);    // P00
    setPixel(source, 1, 0, 50, 40, 2);   // P10
    setPixel(source, 0, 1, 90, 80, 1);   // P01
    setPixel(source, 1, 1, 130, 120, 3); // P11
    const auto target = source.Resample(4, 4);
    ASSERT_NE(target, nullptr);
    // Red, worked by hand: L = round(dy), R = round(2 + dy), O = round(L + (R - L) dx).
    // Row 2 (dy 0.5): L = round(0.5) = 0, R = round(2.5) = 2, and O at dx 0.75 is
    // round(1.5) = 2. Row 3 (dy 0.75): L = 1, R = 3; O at dx 0.25 = round(1.5) = 2.
    const int red[4][4] = {{0, 0, 1, 2}, {0, 0, 1, 2}, {0, 0, 1, 2}, {1, 2, 2, 2}};
    for (int row = 0; row < 4; ++row) {
        for (int x = 0; x < 4; ++x) {
            EXPECT_EQ(byteAt(*target, x, row, 0), 10 + 20 * row + 10 * x) << x << "," << row;
            EXPECT_EQ(byteAt(*target, x, row, 1), 20 * row + 10 * x) << x << "," << row;
            EXPECT_EQ(byteAt(*target, x, row, 2), red[row][x]) << x << "," << row;
        }
    }
}

// 4 x 4 to 2 x 2: the scale is 1.5, so target pixel 1 lies halfway between
// source pixels 1 and 2; source column and row 3 are never read.
TEST(Resample, ReductionSamplesWithoutAveragingTheRest) {
    cDIBSection source;
    ASSERT_TRUE(source.Create(4, 4));
    for (int row = 0; row < 4; ++row) {
        for (int x = 0; x < 4; ++x) {
            setPixel(source, x, row, static_cast<std::uint8_t>(40 * x), 0,
                     static_cast<std::uint8_t>(40 * row));
        }
    }
    for (int i = 0; i < 4; ++i) {
        setPixel(source, 3, i, 255, 255, 255);
        setPixel(source, i, 3, 255, 255, 255);
    }
    const auto target = source.Resample(2, 2);
    ASSERT_NE(target, nullptr);
    EXPECT_EQ(byteAt(*target, 0, 0, 0), 0);
    EXPECT_EQ(byteAt(*target, 1, 0, 0), 60);
    EXPECT_EQ(byteAt(*target, 1, 1, 2), 60);
    EXPECT_EQ(byteAt(*target, 1, 1, 1), 0);
}

TEST(Resample, NothingForAnEmptySizeAndEdgeRepeatedForAOnePixelSource) {
    cDIBSection source;
    ASSERT_TRUE(source.Create(1, 2));
    EXPECT_EQ(source.Resample(0, 4), nullptr);
    EXPECT_EQ(source.Resample(4, 0), nullptr);
    setPixel(source, 0, 0, 0, 100, 200);
    setPixel(source, 0, 1, 40, 100, 0);
    const auto target = source.Resample(4, 3); // yScale 1/4, xScale 0
    ASSERT_NE(target, nullptr);
    for (int x = 0; x < 3; ++x) {
        EXPECT_EQ(byteAt(*target, x, 0, 0), 0);
        EXPECT_EQ(byteAt(*target, x, 1, 0), 10);
        EXPECT_EQ(byteAt(*target, x, 3, 2), 50);
        EXPECT_EQ(byteAt(*target, x, 2, 1), 100);
    }
    source.ClearUp();
    EXPECT_EQ(source.Resample(4, 3), nullptr);
}

class ScriptedRandom : public RandomSource {
public:
    void Seed(float value) override { seeds.push_back(value); }
    float Next() override { return draws[next++ % draws.size()]; }
    std::vector<float> seeds;
    std::vector<float> draws = {0.0f, 0.5f, 0.999f, 0.1f, 0.3f};
    std::size_t next = 0;
};

class FixedClock : public Clock {
public:
    float SecondsSinceMidnight() override { return 3723.5f; }
};

struct NoiseCase {
    bool grey;
    int width;
};

class RandomiseBitsTest : public testing::TestWithParam<NoiseCase> {};

TEST_P(RandomiseBitsTest, FillsPixelsFromTheSeededGeneratorAndLeavesThePad) {
    ScriptedRandom random;
    FixedClock clock;
    cDIBSection s;
    ASSERT_TRUE(s.Create(GetParam().width, 3));
    std::memset(s.DIBSectionBitsPtr(), 0x5A, s.BytesPerScanLine() * 3);
    s.UseNoiseSources(random, clock);
    s.RandomiseBits(GetParam().grey);
    EXPECT_EQ(random.seeds, std::vector<float>{3723.5f});
    // 0.5 * 255 = 127.5 rounds to the even 128; 0.999 * 255 = 254.7 to 255.
    const std::uint8_t expected[] = {0, 128, 255, 26, 77};
    std::size_t draw = 0;
    for (int x = 0; x < s.Width(); ++x) {
        for (int row = 0; row < 3; ++row) {
            const int grey = byteAt(s, x, row, 0);
            if (GetParam().grey) {
                EXPECT_EQ(byteAt(s, x, row, 1), grey);
                EXPECT_EQ(byteAt(s, x, row, 2), grey);
                EXPECT_EQ(grey, expected[(row * s.Width() + x) % 5]) << x << "," << row;
            } else {
                EXPECT_EQ(grey, 0); // no blue in coloured noise
                EXPECT_EQ(byteAt(s, x, row, 1), expected[draw++ % 5]) << x << "," << row;
                EXPECT_EQ(byteAt(s, x, row, 2), expected[draw++ % 5]) << x << "," << row;
            }
        }
        const int padStart = 3 * s.Width();
        for (int row = 0; row < 3; ++row) {
            for (int i = padStart; i < s.BytesPerScanLine(); ++i) {
                EXPECT_EQ(s.DIBSectionBitsPtr()[row * s.BytesPerScanLine() + i], 0x5A);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(GreyAndColour, RandomiseBitsTest,
                         testing::Values(NoiseCase{true, 1}, NoiseCase{true, 5},
                                         NoiseCase{false, 1}, NoiseCase{false, 2}));

} // namespace
} // namespace sw
