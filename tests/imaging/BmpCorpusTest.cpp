// Every kind of BMP file opens as ImageMagick, an independent decoder, sees
// it: pixel for pixel, with channels narrower or wider than 8 bits allowed
// one step of rounding. The files are made here, small, by our own writer
// (the kinds ImageMagick cannot write) and by ImageMagick.
#include "qt/image/QtPictureLoader.h"
#include "tests/imaging/BmpMaker.h"
#include "tests/imaging/ImageMagick.h"
#include "tests/imaging/TestPictures.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <optional>

namespace sw {
namespace {

using test::BmpInfo;
using test::BmpKind;

struct CorpusCase {
    BmpKind kind;
    // Steps of difference allowed from ImageMagick: 0 where every channel
    // has 8 bits, one step of rounding where a channel is narrower or wider;
    // nothing where ImageMagick is known to read the kind wrong.
    std::optional<int> tolerance;
};

bool hasRuns(const BmpKind& kind) {
    return kind.compression == 1 || kind.compression == 2;
}

void PrintTo(const CorpusCase& c, std::ostream* out) {
    *out << c.kind.name;
}

class BmpCorpus : public testing::TestWithParam<CorpusCase> {};

void expectAgreement(const Picture& ours, const test::RgbImage& theirs, int tolerance) {
    ASSERT_EQ(ours.Width(), theirs.width);
    ASSERT_EQ(ours.Height(), theirs.height);
    EXPECT_LE(test::LargestDifference(ours, theirs), tolerance);
}

TEST_P(BmpCorpus, OpensAsImageMagickSeesIt) {
    const test::ScratchFolder folder;
    const BmpKind& kind = GetParam().kind;
    const std::string path = folder.Path(kind.name + ".bmp");
    test::WriteBytes(path, test::MakeBmp(kind));
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(path);
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    if (GetParam().tolerance) {
        expectAgreement(loaded.picture, test::DecodeWithImageMagick(path), *GetParam().tolerance);
    }
    // Exactly what the file means; the sample's white stays white whatever a channel's width.
    if (!hasRuns(kind)) {
        expectAgreement(loaded.picture, test::IntendedPicture(kind), 0);
        EXPECT_EQ(loaded.picture.PixelAt(0, 0), 0xFFFFFFu);
    }
}

constexpr std::array<std::uint32_t, 4> k555 = {0x7C00, 0x03E0, 0x001F, 0};
constexpr std::array<std::uint32_t, 4> k565 = {0xF800, 0x07E0, 0x001F, 0};
constexpr std::array<std::uint32_t, 4> k4444 = {0x0F00, 0x00F0, 0x000F, 0xF000};
constexpr std::array<std::uint32_t, 4> k888 = {0xFF0000, 0x00FF00, 0x0000FF, 0};
constexpr std::array<std::uint32_t, 4> k101010 = {0x3FF00000, 0x000FFC00, 0x000003FF, 0xC0000000};
constexpr std::array<std::uint32_t, 4> k111110 = {0xFFE00000, 0x001FFC00, 0x000003FF, 0};

INSTANTIATE_TEST_SUITE_P(
    Kinds, BmpCorpus,
    testing::Values(
        CorpusCase{{"indexed1", BmpInfo::Windows, 1}, 0},
        CorpusCase{{"indexed4", BmpInfo::Windows, 4}, 0},
        CorpusCase{{"indexed8", BmpInfo::Windows, 8}, 0},
        CorpusCase{{"indexed8_topdown", BmpInfo::Windows, 8, 0, {}, true}, 0},
        CorpusCase{{"os2core_indexed8", BmpInfo::Os2Core, 8}, 0},
        CorpusCase{{"os2core_bgr24", BmpInfo::Os2Core, 24}, 0},
        // ImageMagick takes the OS/2 2.x palette's four-byte entries for three-byte ones.
        CorpusCase{{"os2second_indexed4", BmpInfo::Os2Second, 4}, std::nullopt},
        CorpusCase{{"os2second_bgr24", BmpInfo::Os2Second, 24}, 0},
        CorpusCase{{"bgr24_topdown", BmpInfo::Windows, 24, 0, {}, true}, 0},
        CorpusCase{{"rgb555_plain", BmpInfo::Windows, 16}, 1},
        CorpusCase{{"rgb555_plain_topdown", BmpInfo::Windows, 16, 0, {}, true}, 1},
        CorpusCase{{"rgb565_fields", BmpInfo::Windows, 16, 3, k565}, 1},
        CorpusCase{{"rgb555_fields_v5", BmpInfo::WindowsV5, 16, 3, k555}, 1},
        // ImageMagick shifts a 4-bit channel without filling its low bits: 15 becomes 240.
        CorpusCase{{"argb4444_fields_v4", BmpInfo::WindowsV4, 16, 3, k4444}, 17},
        CorpusCase{{"bgrx32_plain", BmpInfo::Windows, 32}, 0},
        CorpusCase{{"rgb888_fields", BmpInfo::Windows, 32, 3, k888}, 0},
        CorpusCase{{"rgb101010_fields_v5", BmpInfo::WindowsV5, 32, 3, k101010}, 1},
        CorpusCase{{"rgb111110_fields_v4", BmpInfo::WindowsV4, 32, 3, k111110}, 1},
        CorpusCase{{"rle8_escapes", BmpInfo::Windows, 8, 1}, 0},
        CorpusCase{{"rle4_escapes", BmpInfo::Windows, 4, 2}, 0}),
    [](const testing::TestParamInfo<CorpusCase>& testCase) { return testCase.param.kind.name; });

} // namespace
} // namespace sw
