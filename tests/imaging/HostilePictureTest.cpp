// Pictures whose headers claim more than the program takes, and bombs that
// are small on disk and huge decoded: each is refused with its cause before
// any large block of memory is taken.
#include "qt/image/QtPictureLoader.h"
#include "tests/imaging/BmpMaker.h"
#include "tests/imaging/FileCase.h"
#include "tests/imaging/ImageMagick.h"
#include "tests/imaging/LargestAllocation.h"
#include "tests/imaging/TestPictures.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>

namespace sw {
namespace {

using test::Bytes;

const std::string kProjectData = SLICEWRIGHT_TEST_DATA;
constexpr std::size_t kSmallBlock = 1 << 20;
// Qt's readers take their memory with malloc, which operator new does not
// see: the growth of the peak resident size stands guard over them.
constexpr long kSmallGrowthKb = 32 * 1024;

long peakResidentKb() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

std::string tooLarge(int width, int height) {
    return "the picture is " + std::to_string(width) + " x " + std::to_string(height) +
           " pixels; at most 32767 pixels in either direction can be opened";
}

std::string tooManyPixels(int width, int height) {
    return "the picture is " + std::to_string(width) + " x " + std::to_string(height) +
           " pixels, too large to open";
}

void putBigEndian16(Bytes& bytes, std::size_t at, int value) {
    bytes[at] = static_cast<std::uint8_t>(value >> 8);
    bytes[at + 1] = static_cast<std::uint8_t>(value);
}

// The project's small JPG with its frame header claiming another size: the
// entropy data of 40 x 30 pixels stands for a picture of that size.
Bytes jpegClaiming(int width, int height) {
    Bytes bytes = test::ReadBytes(kProjectData + "/small.jpg");
    for (std::size_t i = 0; i + 9 < bytes.size(); ++i) {
        if (bytes[i] == 0xFF && (bytes[i + 1] == 0xC0 || bytes[i + 1] == 0xC2)) {
            putBigEndian16(bytes, i + 5, height);
            putBigEndian16(bytes, i + 7, width);
            return bytes;
        }
    }
    throw std::runtime_error("small.jpg has no frame header");
}

Bytes gifClaiming(int width, int height) {
    Bytes bytes = test::ReadBytes(kProjectData + "/small.gif");
    for (const int at : {6, 8}) {
        const int value = at == 6 ? width : height;
        bytes[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(value);
        bytes[static_cast<std::size_t>(at + 1)] = static_cast<std::uint8_t>(value >> 8);
    }
    return bytes;
}

// A run-length BMP that ends its bitmap at once: a few bytes for any size.
Bytes rleBmpClaiming(int width, int height) {
    Bytes bytes = test::BmpHeaders(width, height, 8, 1, 8, 2);
    bytes.insert(bytes.end(), {0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0, 0, 1});
    return bytes;
}

class HostilePicture : public testing::TestWithParam<test::FileCase> {};

TEST_P(HostilePicture, IsRefusedBeforeAnyLargeAllocation) {
    const test::ScratchFolder folder;
    const std::string path = folder.Path(GetParam().name);
    test::WriteBytes(path, GetParam().bytes);
    test::LargestAllocation::Reset();
    const long peakBefore = peakResidentKb();
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(path);
    const std::size_t largest = test::LargestAllocation::Bytes();
    EXPECT_EQ(loaded.error, GetParam().problem);
    EXPECT_LT(largest, kSmallBlock);
    EXPECT_LT(peakResidentKb() - peakBefore, kSmallGrowthKb);
}

// The guards above see what they are meant to: a picture that opens shows in both.
TEST(HostilePictureGuards, SeeAPictureThatOpens) {
    const test::ScratchFolder folder;
    const std::string path = folder.Path("large.bmp");
    test::WriteBytes(path, test::BmpHeaders(4000, 4000, 24, 0, 0, 0));
    std::filesystem::resize_file(path, 54 + 4000 * 12000);
    test::LargestAllocation::Reset();
    const long peakBefore = peakResidentKb();
    ASSERT_TRUE(QtPictureLoader().LoadPicture(path).ok());
    EXPECT_GE(test::LargestAllocation::Bytes(), std::size_t{4000} * 12000);
    EXPECT_GE(peakResidentKb() - peakBefore, kSmallGrowthKb);
}

INSTANTIATE_TEST_SUITE_P(
    Claims, HostilePicture,
    testing::Values(
        test::FileCase{"huge.bmp", test::BmpHeaders(60000, 60000, 24, 0, 0, 0),
                       tooLarge(60000, 60000)},
        test::FileCase{"huge_rle.bmp", rleBmpClaiming(60000, 60000), tooLarge(60000, 60000)},
        test::FileCase{"bomb_rle.bmp", rleBmpClaiming(32767, 4097), tooManyPixels(32767, 4097)},
        test::FileCase{"huge.gif", gifClaiming(60000, 60000), tooLarge(60000, 60000)},
        test::FileCase{"bomb.gif", gifClaiming(32767, 4097), tooManyPixels(32767, 4097)},
        test::FileCase{"huge.jpg", jpegClaiming(60000, 60000), tooLarge(60000, 60000)},
        test::FileCase{"bomb.jpg", jpegClaiming(32767, 4097), tooManyPixels(32767, 4097)},
        test::FileCase{"too_tall.jpg", jpegClaiming(10, 40000), tooLarge(10, 40000)},
        test::FileCase{"too_wide.gif", gifClaiming(40000, 10), tooLarge(40000, 10)}),
    test::NameOfRow());

// What a file holds decides how it is read, not what its name ends in; a
// file that is no picture is refused whatever its name says.
TEST(PictureOfAnotherKind, OpensByItsContents) {
    const test::ScratchFolder folder;
    struct Renamed {
        std::string source;
        std::string name;
    };
    for (const Renamed& r : {Renamed{"small.bmp", "bmp.jpg"}, Renamed{"small.jpg", "jpg.gif"},
                             Renamed{"small.gif", "gif.bmp"}}) {
        test::WriteBytes(folder.Path(r.name), test::ReadBytes(kProjectData + "/" + r.source));
        const LoadedPicture loaded = QtPictureLoader().LoadPicture(folder.Path(r.name));
        EXPECT_TRUE(loaded.ok()) << r.name << ": " << loaded.error;
    }
    test::WriteBytes(folder.Path("text.bmp"), {'B', 'M', 'x'});
    EXPECT_EQ(QtPictureLoader().LoadPicture(folder.Path("text.bmp")).error,
              "the file is incomplete: it ends before the picture does");
}

} // namespace
} // namespace sw
