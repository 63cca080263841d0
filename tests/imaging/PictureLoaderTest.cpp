#include "common/Types.h"
#include "qt/image/QtPictureLoader.h"
#include "tests/imaging/FileBytes.h"
#include "tests/imaging/ImageMagick.h"
#include "tests/imaging/TestPictures.h"

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

namespace sw {
namespace {

using test::Bytes;

void putLe(Bytes& out, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
}

// A BMP file header and info header; the pixels (or nothing) follow.
Bytes bmpHeaders(std::int32_t width, std::int32_t height, int bits, int compression,
                 std::uint32_t paletteBytes, std::uint32_t imageBytes) {
    Bytes out = {'B', 'M'};
    putLe(out, 54 + paletteBytes + imageBytes, 4);
    putLe(out, 0, 4);
    putLe(out, 54 + paletteBytes, 4);
    for (const std::uint32_t field :
         {40u, static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)}) {
        putLe(out, field, 4);
    }
    putLe(out, 1, 2);
    putLe(out, static_cast<std::uint32_t>(bits), 2);
    putLe(out, static_cast<std::uint32_t>(compression), 4);
    putLe(out, imageBytes, 4);
    out.insert(out.end(), 16, 0); // resolution, palette size, important colours
    return out;
}

// ImageMagick writes no 4-bit run-length BMP: a 4 x 2 one by hand, bottom
// row "1 2 1 2", top row "3 3 3 0".
void writeRle4(const std::string& path) {
    const Bytes image = {4, 0x12, 0, 0, 3, 0x33, 1, 0x00, 0, 0, 0, 1};
    Bytes out = bmpHeaders(4, 2, 4, 2, 64, static_cast<std::uint32_t>(image.size()));
    for (std::uint32_t i = 0; i < 16; ++i) {
        putLe(out, (i * 50) << 16 | (255 - i * 10) << 8 | (i * 15), 4);
    }
    out.insert(out.end(), image.begin(), image.end());
    test::WriteBytes(path, out);
}

// The same picture with its rows stored top-down (a negative height).
void writeTopDown(const std::string& bottomUpBmp, const std::string& path) {
    Bytes bytes = test::ReadBytes(bottomUpBmp);
    const std::int32_t width = bytes[18] | bytes[19] << 8;
    const std::int32_t height = bytes[22] | bytes[23] << 8;
    const std::size_t stride = (3 * static_cast<std::size_t>(width) + 3) & ~std::size_t{3};
    Bytes flipped(bytes.begin(), bytes.begin() + 54);
    flipped.resize(18);
    putLe(flipped, static_cast<std::uint32_t>(width), 4);
    putLe(flipped, static_cast<std::uint32_t>(-height), 4);
    flipped.insert(flipped.end(), bytes.begin() + 26, bytes.begin() + 54);
    for (std::int32_t row = height - 1; row >= 0; --row) {
        const auto start = bytes.begin() + 54 + static_cast<long>(stride * row);
        flipped.insert(flipped.end(), start, start + static_cast<long>(stride));
    }
    test::WriteBytes(path, flipped);
}

int largestDifference(const Picture& ours, const test::RgbImage& theirs) {
    int largest = 0;
    for (int y = 0; y < ours.Height(); ++y) {
        for (int x = 0; x < ours.Width(); ++x) {
            const Color bgr = ours.PixelAt(x, y);
            for (int c = 0; c < 3; ++c) {
                largest =
                    std::max(largest, std::abs(int((bgr >> (8 * c)) & 0xFF) - theirs.At(x, y)[c]));
            }
        }
    }
    return largest;
}

struct DecodeCase {
    std::string name;
    std::function<void(const test::ScratchFolder&, const std::string&)> make;
    // JPG decoders may differ in their last bits (IDCT, chroma upsampling).
    int tolerance;
    // What ImageMagick is asked to read, when not the whole file.
    std::string frame;
};

std::function<void(const test::ScratchFolder&, const std::string&)>
convertRose(const std::string& options, const std::string& format = "") {
    return [options, format](const test::ScratchFolder&, const std::string& path) {
        test::Convert("rose: " + options + " " + format + "'" + path + "'");
    };
}

std::function<void(const test::ScratchFolder&, const std::string&)>
convertFile(const std::string& options) {
    return [options](const test::ScratchFolder&, const std::string& path) {
        test::Convert(options + " '" + path + "'");
    };
}

void PrintTo(const DecodeCase& c, std::ostream* out) {
    *out << c.name;
}

class LoaderAgreesWithImageMagick : public testing::TestWithParam<DecodeCase> {};

TEST_P(LoaderAgreesWithImageMagick, PixelForPixel) {
    const test::ScratchFolder folder;
    const DecodeCase& c = GetParam();
    const std::string path = folder.Path(c.name);
    c.make(folder, path);
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(path);
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    const test::RgbImage reference = test::DecodeWithImageMagick(path + c.frame);
    ASSERT_EQ(loaded.picture.Width(), reference.width);
    ASSERT_EQ(loaded.picture.Height(), reference.height);
    EXPECT_LE(largestDifference(loaded.picture, reference), c.tolerance);
}

const std::string kProjectData = SLICEWRIGHT_TEST_DATA;

INSTANTIATE_TEST_SUITE_P(
    Kinds, LoaderAgreesWithImageMagick,
    testing::Values(
        DecodeCase{"bmp1.bmp", convertRose("-type bilevel", "BMP3:"), 0, ""},
        DecodeCase{"bmp4.bmp", convertRose("-colors 16 -type palette", "BMP3:"), 0, ""},
        DecodeCase{"bmp8.bmp", convertRose("-colors 200 -type palette -compress None", "BMP3:"), 0,
                   ""},
        DecodeCase{"rle8.bmp", convertRose("-colors 200 -type palette -compress RLE", "BMP3:"), 0,
                   ""},
        DecodeCase{"rle4.bmp", [](auto&, const std::string& p) { writeRle4(p); }, 0, ""},
        // 5 and 6 bits widen to 8 by scaling or by shifting: decoders differ below one step.
        DecodeCase{"bmp16.bmp", convertRose("-define bmp:subtype=RGB565", "BMP:"), 7, ""},
        DecodeCase{"bmp24.bmp", convertRose("-type truecolor", "BMP3:"), 0, ""},
        DecodeCase{"bmp32.bmp", convertRose("-alpha on -channel A -fx 1", "BMP:"), 0, ""},
        DecodeCase{"topdown.bmp",
                   [](const test::ScratchFolder& f, const std::string& p) {
                       test::Convert("rose: -type truecolor BMP3:'" + f.Path("up.bmp") + "'");
                       writeTopDown(f.Path("up.bmp"), p);
                   },
                   0, ""},
        DecodeCase{"baseline.jpg", convertRose("-quality 85 -interlace none"), 2, ""},
        DecodeCase{"progressive.jpg", convertRose("-quality 85 -interlace Plane"), 2, ""},
        DecodeCase{"grey.jpg", convertRose("-colorspace Gray"), 1, ""},
        DecodeCase{"cmyk.jpg", convertRose("-colorspace CMYK"), 3, ""},
        DecodeCase{"animation.gif", convertRose("\\( rose: -negate \\) -loop 0"), 0, "[0]"},
        DecodeCase{"outside.gif", convertFile("'" + kProjectData + "/cmake-logo.gif'"), 0, ""}),
    [](const testing::TestParamInfo<DecodeCase>& info) {
        std::string name = info.param.name;
        std::replace(name.begin(), name.end(), '.', '_');
        return name;
    });

struct BadFile {
    std::string name;
    Bytes contents; // empty with `exists` false: no file at all
    bool exists;
    std::string error;
};

void PrintTo(const BadFile& bad, std::ostream* out) {
    *out << bad.name;
}

class LoaderRefuses : public testing::TestWithParam<BadFile> {};

TEST_P(LoaderRefuses, WithAReasonInPlainWords) {
    const test::ScratchFolder folder;
    const BadFile& bad = GetParam();
    if (bad.exists) {
        test::WriteBytes(folder.Path(bad.name), bad.contents);
    }
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(folder.Path(bad.name));
    EXPECT_EQ(loaded.error, bad.error);
    EXPECT_TRUE(loaded.picture.IsEmpty());
}

// The first half of ImageMagick's sample picture in the kind that `name` ends in.
Bytes firstHalfOf(const std::string& name) {
    const test::ScratchFolder folder;
    test::Convert("rose: '" + folder.Path(name) + "'");
    Bytes bytes = test::ReadBytes(folder.Path(name));
    bytes.resize(bytes.size() / 2);
    return bytes;
}

Bytes cutBmp() {
    Bytes bytes = bmpHeaders(10, 10, 24, 0, 0, 320);
    bytes.resize(bytes.size() + 300, 0x80);
    return bytes;
}

const std::string kNotAPicture = "the file is not a BMP, JPG or GIF picture, or it is damaged";
const std::string kCutOff = "the file is incomplete: it ends before the picture does";

INSTANTIATE_TEST_SUITE_P(
    Unreadable, LoaderRefuses,
    testing::Values(
        BadFile{"missing.bmp", {}, false, "the file does not exist"},
        BadFile{"empty.jpg", {}, true, "the file is empty"},
        BadFile{"text.jpg", {'h', 'e', 'l', 'l', 'o', '\n'}, true, kNotAPicture},
        BadFile{"cut.jpg", firstHalfOf("whole.jpg"), true, kCutOff},
        BadFile{"cut.gif", firstHalfOf("whole.gif"), true, kCutOff},
        BadFile{"cut.bmp", cutBmp(), true, kCutOff},
        BadFile{"wide.bmp", bmpHeaders(40000, 10, 24, 0, 0, 0), true,
                "the picture is 40000 x 10 pixels; at most 32767 pixels in either direction "
                "can be opened"},
        BadFile{"huge.bmp", bmpHeaders(30000, 30000, 24, 0, 0, 0), true,
                "the picture is 30000 x 30000 pixels, too large to open"}),
    [](const testing::TestParamInfo<BadFile>& info) {
        std::string name = info.param.name;
        std::replace(name.begin(), name.end(), '.', '_');
        return name;
    });

TEST(LoaderOnTheOffscreenPlatform, DecodesWithAGuiApplicationToo) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    int argc = 1;
    char name[] = "slicewright_imaging_tests";
    char* argv[] = {name, nullptr};
    const QGuiApplication app(argc, argv);
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(kProjectData + "/cmake-logo.gif");
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    EXPECT_EQ(loaded.picture.Width(), 150);
}

} // namespace
} // namespace sw
