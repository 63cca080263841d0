#include "common/Types.h"
#include "qt/image/QtPictureLoader.h"
#include "tests/imaging/BmpMaker.h"
#include "tests/imaging/FileCase.h"
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

using test::BmpHeaders;
using test::Bytes;
using test::ReadBytes;
using test::WriteBytes;

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
    EXPECT_LE(test::LargestDifference(loaded.picture, reference), c.tolerance);
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
        DecodeCase{"os2.bmp", convertRose("-colors 16 -type palette", "BMP2:"), 0, ""},
        // 5 and 6 bits widen to 8 by scaling: decoders may round a step apart.
        DecodeCase{"bmp16.bmp", convertRose("-define bmp:subtype=RGB565", "BMP:"), 1, ""},
        DecodeCase{"bmp555.bmp", convertRose("-define bmp:subtype=RGB555", "BMP:"), 1, ""},
        DecodeCase{"bmp24.bmp", convertRose("-type truecolor", "BMP3:"), 0, ""},
        DecodeCase{"bmp32.bmp", convertRose("-alpha on -channel A -fx 1", "BMP:"), 0, ""},
        DecodeCase{"baseline.jpg", convertRose("-quality 85 -interlace none"), 2, ""},
        DecodeCase{"progressive.jpg", convertRose("-quality 85 -interlace Plane"), 2, ""},
        DecodeCase{"grey.jpg", convertRose("-colorspace Gray"), 1, ""},
        DecodeCase{"cmyk.jpg", convertRose("-colorspace CMYK"), 3, ""},
        DecodeCase{"animation.gif", convertRose("\\( rose: -negate \\) -loop 0"), 0, "[0]"},
        DecodeCase{"outside.gif", convertFile("'" + kProjectData + "/cmake-logo.gif'"), 0, ""}),
    test::NameOfRow());

class LoaderRefuses : public testing::TestWithParam<test::FileCase> {};

TEST_P(LoaderRefuses, WithAReasonInPlainWords) {
    const test::ScratchFolder folder;
    const test::FileCase& bad = GetParam();
    WriteBytes(folder.Path(bad.name), bad.bytes);
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(folder.Path(bad.name));
    EXPECT_EQ(loaded.error, bad.problem);
    EXPECT_TRUE(loaded.picture.IsEmpty());
}

TEST(LoaderRefusesWhatIsNoFile, WithAReasonInPlainWords) {
    const test::ScratchFolder folder;
    EXPECT_EQ(QtPictureLoader().LoadPicture(folder.Path("missing.bmp")).error,
              "the file does not exist");
    EXPECT_EQ(QtPictureLoader().LoadPicture(folder.Path()).error,
              "it is a folder, not a picture file");
}

// The first half of ImageMagick's sample picture in the kind that `name` ends in.
Bytes firstHalfOf(const std::string& name) {
    const test::ScratchFolder folder;
    test::Convert("rose: '" + folder.Path(name) + "'");
    Bytes bytes = ReadBytes(folder.Path(name));
    bytes.resize(bytes.size() / 2);
    return bytes;
}

Bytes cutBmp() {
    Bytes bytes = BmpHeaders(10, 10, 24, 0, 0, 320);
    bytes.resize(bytes.size() + 300, 0x80);
    return bytes;
}

// The project's small GIF with a logical screen of another size than its frames.
Bytes gifWithScreen(std::uint32_t width, std::uint32_t height) {
    Bytes bytes = ReadBytes(kProjectData + "/small.gif");
    Bytes size;
    test::PutLittleEndian(size, width, 2);
    test::PutLittleEndian(size, height, 2);
    std::copy(size.begin(), size.end(), bytes.begin() + 6);
    return bytes;
}

const std::string kNotAPicture = "the file is not a BMP, JPG or GIF picture, or it is damaged";
const std::string kCutOff = "the file is incomplete: it ends before the picture does";

INSTANTIATE_TEST_SUITE_P(
    Unreadable, LoaderRefuses,
    testing::Values(
        test::FileCase{"empty.jpg", {}, "the file is empty"},
        test::FileCase{"text.jpg", {'h', 'e', 'l', 'l', 'o', '\n'}, kNotAPicture},
        test::FileCase{"cut.jpg", firstHalfOf("whole.jpg"), kCutOff},
        test::FileCase{"cut.gif", firstHalfOf("whole.gif"), kCutOff},
        test::FileCase{"cut.bmp", cutBmp(), kCutOff},
        test::FileCase{"wide.bmp", BmpHeaders(40000, 10, 24, 0, 0, 0),
                       "the picture is 40000 x 10 pixels; at most 32767 pixels in either direction "
                       "can be opened"},
        test::FileCase{"huge.bmp", BmpHeaders(30000, 30000, 24, 0, 0, 0),
                       "the picture is 30000 x 30000 pixels, too large to open"},
        // Found by fuzzing: Qt's reader gives the frame's size and decodes into the screen's.
        test::FileCase{"wide_screen.gif", gifWithScreen(65507, 16),
                       "the picture is 65507 x 16 pixels; at most 32767 pixels in either direction "
                       "can be opened"},
        test::FileCase{
            "huge_screen.gif", gifWithScreen(60000, 60000),
            "the picture is 60000 x 60000 pixels; at most 32767 pixels in either direction "
            "can be opened"}),
    test::NameOfRow());

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
