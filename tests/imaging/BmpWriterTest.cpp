#include "imaging/BmpWriter.h"

#include "common/FileWriteError.h"
#include "common/Types.h"
#include "imaging/Picture.h"
#include "tests/imaging/ImageMagick.h"
#include "tests/imaging/TestPictures.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <vector>

namespace sw {
namespace {

std::vector<std::uint8_t> bytesOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class BmpWriter : public testing::Test {
protected:
    test::ScratchFolder folder;
};

TEST_F(BmpWriter, HeadersAndRowsAreByteExact) {
    // 3 x 2: rows of 9 pixel bytes padded to 12, the bottom row first.
    std::vector<std::uint8_t> pixels(24, 0xEE); // the pad in memory is not copied
    for (int i = 0; i < 9; ++i) {
        pixels[i] = static_cast<std::uint8_t>(i + 1);       // bottom row
        pixels[12 + i] = static_cast<std::uint8_t>(i + 11); // top row
    }
    const std::string path = folder.Path("small.bmp");
    SavePicture(Picture::FromBottomUpBgr(3, 2, pixels), path);
    const std::vector<std::uint8_t> expected = {
        'B', 'M', 78, 0,  0,  0,  0,  0,  0,  0, 54, 0, 0, 0,        // file header
        40,  0,   0,  0,  3,  0,  0,  0,  2,  0, 0,  0, 1, 0, 24, 0, // size, planes, depth
        0,   0,   0,  0,  24, 0,  0,  0,  0,  0, 0,  0, 0, 0, 0,  0, // compression, image size
        0,   0,   0,  0,  0,  0,  0,  0,                             // palette
        1,   2,   3,  4,  5,  6,  7,  8,  9,  0, 0,  0,              // bottom row
        11,  12,  13, 14, 15, 16, 17, 18, 19, 0, 0,  0,              // top row
    };
    EXPECT_EQ(bytesOf(path), expected);
}

TEST_F(BmpWriter, AClipDecodesPixelForPixel) {
    const Picture photo = test::PhotoLikePicture(41, 30);
    const Picture clip = photo.Clip(5, 7, 33, 19);
    const std::string path = folder.Path("clip.bmp");
    SavePicture(clip, path);
    const test::RgbImage decoded = test::DecodeWithImageMagick(path);
    ASSERT_EQ(decoded.width, 33);
    ASSERT_EQ(decoded.height, 19);
    for (int y = 0; y < 19; ++y) {
        for (int x = 0; x < 33; ++x) {
            const Color bgr = clip.PixelAt(x, y);
            const std::uint8_t* rgb = decoded.At(x, y);
            ASSERT_EQ(rgb[0], bgr & 0xFF) << x << "," << y;
            ASSERT_EQ(rgb[1], (bgr >> 8) & 0xFF) << x << "," << y;
            ASSERT_EQ(rgb[2], bgr >> 16) << x << "," << y;
        }
    }
}

TEST_F(BmpWriter, FailuresAreFileWriteErrorsAndKeepTheOldFile) {
    const std::string path = folder.Path("old.bmp");
    std::ofstream(path) << "old";
    EXPECT_THROW(SavePicture(Picture(), path), FileWriteError);
    EXPECT_THROW(SavePicture(Picture::Filled(2, 2, 0), folder.Path("gone/x.bmp")), FileWriteError);
    EXPECT_EQ(bytesOf(path).size(), 3u);
}

} // namespace
} // namespace sw
