// The BMP header reader on hostile and unusual headers: every count in a
// header is checked before it is used, and each refusal says why.
#include "imaging/BmpHeader.h"

#include "imaging/BmpFile.h"
#include "imaging/PictureLimits.h"
#include "imaging/PictureProblems.h"
#include "tests/imaging/BmpMaker.h"
#include "tests/imaging/FileCase.h"

#include <gtest/gtest.h>
#include <limits>
#include <sstream>

namespace sw {
namespace {

using test::BmpHeaders;
using test::Bytes;
using test::FileCase;
using test::PutLittleEndian;

std::istringstream streamOf(const Bytes& bytes) {
    return std::istringstream(std::string(bytes.begin(), bytes.end()));
}

BmpHeaderRead headerOf(const Bytes& bytes) {
    std::istringstream in = streamOf(bytes);
    return ReadBmpHeader(in);
}

BmpRead readWhole(const Bytes& bytes) {
    std::istringstream in = streamOf(bytes);
    return ReadBmp(in, bytes.size());
}

Bytes withField(Bytes bytes, std::size_t at, std::uint32_t value, int count = 4) {
    Bytes field;
    PutLittleEndian(field, value, count);
    std::copy(field.begin(), field.end(), bytes.begin() + static_cast<long>(at));
    return bytes;
}

Bytes withPixels(Bytes bytes, std::size_t count, std::uint8_t value = 0x40) {
    bytes.insert(bytes.end(), count, value);
    return bytes;
}

// A header whose pair of bit count and compression no BMP this program
// reads has, refused with `cause`.
FileCase unreadableKind(std::string name, const Bytes& bytes, const std::string& cause) {
    return {std::move(name), bytes,
            "the BMP file stores its pixels in a way this program cannot read (" + cause + ")"};
}

class BmpHeaderRefuses : public testing::TestWithParam<FileCase> {};

TEST_P(BmpHeaderRefuses, WithItsCause) {
    const BmpHeaderRead read = headerOf(GetParam().bytes);
    EXPECT_FALSE(read.header.has_value());
    EXPECT_EQ(read.problem, GetParam().problem);
}

const Bytes kPlain = BmpHeaders(4, 4, 24, 0, 0, 64);

INSTANTIATE_TEST_SUITE_P(
    Headers, BmpHeaderRefuses,
    testing::Values(
        FileCase{"only_the_magic", {'B', 'M'}, kIncompleteFileProblem},
        FileCase{"other_magic", withField(kPlain, 0, 'P' | 'K' << 8, 2), kNotAPictureProblem},
        FileCase{"info_size_0", withField(kPlain, 14, 0),
                 "the BMP header is damaged: no kind of BMP has an info header of 0 bytes"},
        FileCase{"info_size_13", withField(kPlain, 14, 13),
                 "the BMP header is damaged: no kind of BMP has an info header of 13 bytes"},
        FileCase{"info_size_4g", withField(kPlain, 14, 0xFFFFFFFF),
                 "the BMP header is damaged: no kind of BMP has an info header of "
                 "4294967295 bytes"},
        FileCase{"info_cut_short", Bytes(kPlain.begin(), kPlain.begin() + 30),
                 kIncompleteFileProblem},
        FileCase{"info_larger_than_file", withField(kPlain, 14, 4000), kIncompleteFileProblem},
        FileCase{"negative_width", BmpHeaders(-4, 4, 24, 0, 0, 64),
                 "the BMP header is damaged: it gives a negative width"},
        FileCase{"most_negative_width",
                 BmpHeaders(std::numeric_limits<std::int32_t>::min(), 4, 24, 0, 0, 64),
                 "the BMP header is damaged: it gives a negative width"},
        FileCase{"zero_height", BmpHeaders(4, 0, 24, 0, 0, 64),
                 "the BMP header is damaged: it gives a width or height of 0"},
        unreadableKind("zero_bits", BmpHeaders(4, 4, 0, 0, 0, 64), "0 bits a pixel"),
        unreadableKind("two_bits", BmpHeaders(4, 4, 2, 0, 0, 64), "2 bits a pixel"),
        unreadableKind("64_bits", BmpHeaders(4, 4, 64, 0, 0, 64), "64 bits a pixel"),
        unreadableKind("embedded_jpeg", BmpHeaders(4, 4, 0, 4, 0, 64), "compression 4"),
        unreadableKind("embedded_png", BmpHeaders(4, 4, 0, 5, 0, 64), "compression 5"),
        unreadableKind("fields_on_24_bits", BmpHeaders(4, 4, 24, 3, 0, 64), "compression 3"),
        unreadableKind("rle8_on_4_bits", BmpHeaders(4, 4, 4, 1, 64, 64), "compression 1"),
        unreadableKind("os2_huffman",
                       withField(withPixels(BmpHeaders(4, 4, 16, 3, 0, 64), 64), 14, 64),
                       "compression 3"),
        FileCase{"rle8_top_down", BmpHeaders(4, -4, 8, 1, 1024, 8),
                 "the BMP header is damaged: run-length pixels cannot run from the top down"},
        FileCase{"palette_cut_short", BmpHeaders(4, 4, 8, 0, 1024, 0), kIncompleteFileProblem},
        FileCase{"no_room_for_a_palette", withPixels(BmpHeaders(4, 4, 8, 0, 0, 16), 16),
                 "the BMP file is damaged: its picture needs colours, and it has none"},
        FileCase{"masks_cut_short", BmpHeaders(4, 4, 16, 3, 0, 0), kIncompleteFileProblem}),
    test::NameOfRow());

TEST(BmpHeader, RowCountsOfAnyHeaderNeitherOverflowNorPass) {
    BmpHeader h;
    h.width = std::numeric_limits<std::int32_t>::max();
    h.height = std::numeric_limits<std::int32_t>::min();
    h.bitCount = 32;
    h.storage = BmpStorage::Masked;
    EXPECT_EQ(h.Rows(), std::int64_t{1} << 31);
    EXPECT_EQ(h.RowBytes(), (std::uint64_t{std::numeric_limits<std::int32_t>::max()} * 4));
    EXPECT_FALSE(h.HoldsEveryRow(std::numeric_limits<std::uint64_t>::max() / 2));
    h.width = 4;
    h.height = -2;
    h.pixelOffset = 54;
    EXPECT_TRUE(h.HoldsEveryRow(54 + 32));
    EXPECT_FALSE(h.HoldsEveryRow(54 + 31));
    EXPECT_FALSE(h.HoldsEveryRow(10)); // the offset lies past the end
}

TEST(BmpHeader, PaletteLargerThanTheBitsCanIndexIsCutToThem) {
    const Bytes bytes =
        withField(withPixels(BmpHeaders(4, 1, 1, 0, 8, 4), 8 + 4, 0xFF), 46, 0xFFFFFFFF);
    const BmpHeaderRead read = headerOf(bytes);
    ASSERT_TRUE(read.header) << read.problem;
    EXPECT_EQ(read.header->palette.size(), 2u);
}

TEST(BmpHeader, ColoursNamedInTheHeaderAreAllThePaletteHas) {
    // Two colours for an 8-bit picture: index 5 lies past them and shows black.
    Bytes bytes = withField(BmpHeaders(1, 1, 8, 0, 8, 4), 46, 2);
    bytes.insert(bytes.end(), {0xFF, 0xFF, 0xFF, 0, 0x10, 0x20, 0x30, 0, 5, 0, 0, 0});
    const BmpRead read = readWhole(bytes);
    ASSERT_TRUE(read.picture) << read.problem;
    EXPECT_EQ(read.picture->PixelAt(0, 0), 0u);
}

struct SizeCase {
    std::string name;
    std::int32_t width;
    std::int32_t height;
    std::string problem; // empty: the picture opens
};

void PrintTo(const SizeCase& c, std::ostream* out) {
    *out << c.name;
}

class BmpSizeLimits : public testing::TestWithParam<SizeCase> {};

// Each limit on its own side: a picture at the limit opens, one past it is
// refused before its pixels are read, from the header alone.
TEST_P(BmpSizeLimits, HoldEachSideOnItsOwn) {
    const SizeCase& c = GetParam();
    const std::uint64_t stride = (std::uint64_t(c.width) * 3 + 3) / 4 * 4;
    const std::uint64_t rows = c.height < 0 ? -std::int64_t{c.height} : c.height;
    const bool opens = c.problem.empty();
    const Bytes bytes =
        withPixels(BmpHeaders(c.width, c.height, 24, 0, 0, 0), opens ? stride * rows : 0);
    const BmpRead read = readWhole(bytes);
    EXPECT_EQ(read.problem, c.problem);
    EXPECT_EQ(read.picture.has_value(), opens);
}

INSTANTIATE_TEST_SUITE_P(
    Sides, BmpSizeLimits,
    testing::Values(SizeCase{"widest", kMaxPictureSide, 1, ""},
                    SizeCase{"too_wide", kMaxPictureSide + 1, 1,
                             "the picture is 32768 x 1 pixels; at most 32767 pixels in either "
                             "direction can be opened"},
                    SizeCase{"tallest", 1, kMaxPictureSide, ""},
                    SizeCase{"tallest_top_down", 1, -kMaxPictureSide, ""},
                    SizeCase{"too_tall", 10, 40000,
                             "the picture is 10 x 40000 pixels; at most 32767 pixels in either "
                             "direction can be opened"},
                    SizeCase{"too_tall_top_down", 1, -(kMaxPictureSide + 1),
                             "the picture is 1 x 32768 pixels; at most 32767 pixels in either "
                             "direction can be opened"},
                    SizeCase{"claims_60000_square", 60000, 60000,
                             "the picture is 60000 x 60000 pixels; at most 32767 pixels in either "
                             "direction can be opened"},
                    SizeCase{"most_negative_height", 1, std::numeric_limits<std::int32_t>::min(),
                             "the picture is 1 x 2147483648 pixels; at most 32767 pixels in either "
                             "direction can be opened"},
                    SizeCase{"too_many_pixels", 11586, 11586,
                             "the picture is 11586 x 11586 pixels, too large to open"}),
    test::NameOfRow());

TEST(PictureSizeLimits, PixelBudgetHoldsOnBothSides) {
    EXPECT_FALSE(PictureSizeProblem(kMaxPictureSide, kMaxPicturePixels / kMaxPictureSide));
    EXPECT_TRUE(PictureSizeProblem(kMaxPictureSide, kMaxPicturePixels / kMaxPictureSide + 1));
}

TEST(BmpRunLength, EndingBeforeThePictureIsIncomplete) {
    // Two rows announced, one line end given, no end of bitmap.
    Bytes bytes = BmpHeaders(2, 2, 8, 1, 1024, 4);
    bytes.insert(bytes.end(), 1024, 0xFF);
    bytes.insert(bytes.end(), {2, 1, 0, 0});
    EXPECT_EQ(readWhole(bytes).problem, kIncompleteFileProblem);
}

TEST(BmpRunLength, AnEarlyEndOfBitmapLeavesTheRestInTheFirstColour) {
    // Palette: 0 white, 1 red. One red pixel, then the end of the bitmap.
    Bytes bytes = withField(BmpHeaders(2, 2, 8, 1, 8, 4), 46, 2);
    bytes.insert(bytes.end(), {0xFF, 0xFF, 0xFF, 0, 0, 0, 0xFF, 0, 1, 1, 0, 1});
    const BmpRead read = readWhole(bytes);
    ASSERT_TRUE(read.picture) << read.problem;
    EXPECT_EQ(read.picture->PixelAt(0, 1), 0x0000FFu); // bottom left: red, as 0x00BBGGRR
    EXPECT_EQ(read.picture->PixelAt(1, 1), 0xFFFFFFu);
    EXPECT_EQ(read.picture->PixelAt(0, 0), 0xFFFFFFu);
}

TEST(BmpRunLength, RunsPastTheEdgesAreCutAtThem) {
    // A run of 255 on a row of 2, an absolute run of 6 likewise, a delta far below the last row.
    Bytes bytes = BmpHeaders(2, 2, 8, 1, 1024, 18);
    bytes.insert(bytes.end(), 1024, 0x11);
    bytes.insert(bytes.end(), {255, 3, 0, 0, 0, 6, 1, 2, 3, 4, 5, 6, 0, 2, 200, 200, 0, 1});
    const BmpRead read = readWhole(bytes);
    ASSERT_TRUE(read.picture) << read.problem;
    EXPECT_EQ(read.picture->Width(), 2);
}

} // namespace
} // namespace sw
