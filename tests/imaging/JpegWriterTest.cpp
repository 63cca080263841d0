#include "imaging/JpegWriter.h"

#include "common/FileWriteError.h"
#include "imaging/JpegWriteError.h"
#include "imaging/cDIBSection.h"
#include "tests/imaging/ImageMagick.h"
#include "tests/imaging/TestPictures.h"

#include <cmath>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace sw {
namespace {

using test::DecodeWithImageMagick;
using test::RgbImage;

double psnr(const Picture& source, const RgbImage& decoded) {
    double squares = 0;
    for (int y = 0; y < source.Height(); ++y) {
        for (int x = 0; x < source.Width(); ++x) {
            const Color bgr = source.PixelAt(x, y);
            const std::uint8_t* rgb = decoded.At(x, y);
            for (int c = 0; c < 3; ++c) {
                const double difference = double((bgr >> (8 * c)) & 0xFF) - rgb[c];
                squares += difference * difference;
            }
        }
    }
    const double mse = squares / (3.0 * source.Width() * source.Height());
    return 10.0 * std::log10(255.0 * 255.0 / mse);
}

std::string contentsOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class JpegWriter : public testing::Test {
protected:
    test::ScratchFolder folder;
};

TEST_F(JpegWriter, WritesAnUprightPictureCloseToTheSource) {
    const Picture picture = test::PhotoLikePicture(160, 120);
    cDIBSection surface;
    surface.CreateFromPicture(picture);
    const std::string path = folder.Path("photo.jpg");
    ASSERT_TRUE(WriteJPGFile(surface, path, 90));
    const RgbImage decoded = DecodeWithImageMagick(path);
    ASSERT_EQ(decoded.width, 160);
    ASSERT_EQ(decoded.height, 120);
    EXPECT_GT(psnr(picture, decoded), 35.0);
}

TEST_F(JpegWriter, OddSizesKeepTheirSizeAndOrientation) {
    // Top-left quarter dark, the rest bright: a flip or a mirror moves it.
    const std::pair<int, int> sizes[] = {{1, 1}, {1, 7}, {3, 5}, {4, 1}, {17, 9}, {33, 3}};
    for (const auto& [width, height] : sizes) {
        cDIBSection surface;
        ASSERT_TRUE(surface.Create(width, height));
        std::memset(surface.DIBSectionBitsPtr(), 0xFF, surface.BytesPerScanLine() * height);
        for (int row = 0; row < height; ++row) {
            std::uint8_t* bytes = surface.DIBSectionBitsPtr() + row * surface.BytesPerScanLine();
            for (int x = 0; x < width; ++x) {
                const bool topLeft = x < (width + 1) / 2 && row >= height / 2;
                std::memset(bytes + 3 * x, topLeft ? 0x00 : 0xF0, 3);
            }
        }
        const std::string path = folder.Path("odd.jpg");
        ASSERT_TRUE(WriteJPGFile(surface, path, 95));
        const RgbImage decoded = DecodeWithImageMagick(path);
        ASSERT_EQ(decoded.width, width);
        ASSERT_EQ(decoded.height, height);
        EXPECT_LT(decoded.At(0, 0)[1], 60) << width << "x" << height;
        if (width > 1 && height > 1) {
            EXPECT_GT(decoded.At(width - 1, height - 1)[1], 180) << width << "x" << height;
        }
    }
}

TEST_F(JpegWriter, LowerQualityGivesASmallerFile) {
    cDIBSection surface;
    surface.CreateFromPicture(test::PhotoLikePicture(64, 48));
    ASSERT_TRUE(WriteJPGFile(surface, folder.Path("q1.jpg"), 1));
    ASSERT_TRUE(WriteJPGFile(surface, folder.Path("q100.jpg"), 100));
    EXPECT_LT(std::filesystem::file_size(folder.Path("q1.jpg")),
              std::filesystem::file_size(folder.Path("q100.jpg")));
}

TEST_F(JpegWriter, AReplacedFileKeepsItsTimesAndMode) {
    const std::string path = folder.Path("old.jpg");
    std::ofstream(path) << "an older file";
    ::chmod(path.c_str(), 0640);
    const struct timespec past[2] = {{1000000000, 123456789}, {1100000000, 987654321}};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), past, 0), 0);

    cDIBSection surface;
    surface.CreateFromPicture(test::PhotoLikePicture(20, 10));
    ASSERT_TRUE(WriteJPGFile(surface, path, 90));
    struct stat facts {};
    ASSERT_EQ(::stat(path.c_str(), &facts), 0);
    EXPECT_EQ(facts.st_atim.tv_sec, past[0].tv_sec);
    EXPECT_EQ(facts.st_atim.tv_nsec, past[0].tv_nsec);
    EXPECT_EQ(facts.st_mtim.tv_sec, past[1].tv_sec);
    EXPECT_EQ(facts.st_mtim.tv_nsec, past[1].tv_nsec);
    EXPECT_EQ(facts.st_mode & 07777, 0640u);
    EXPECT_EQ(DecodeWithImageMagick(path).width, 20);
}

TEST_F(JpegWriter, AFailedEncodeLeavesTheOldFileAndReportsError26001) {
    const std::string path = folder.Path("keep.jpg");
    std::ofstream(path) << "precious";
    cDIBSection live;
    live.CreateFromPicture(test::PhotoLikePicture(8, 8));
    cDIBSection withoutBuffer;
    ASSERT_TRUE(withoutBuffer.Create(8, 8));
    withoutBuffer.ClearUp();
    const struct {
        const cDIBSection* surface;
        int quality;
        std::string description;
    } cases[] = {
        {&live, 0, "Failed to save to JPG " + std::to_string(kJpegStatusBadQuality)},
        {&live, 101, "Failed to save to JPG " + std::to_string(kJpegStatusBadQuality)},
        {&withoutBuffer, 90, "Failed to save to JPG " + std::to_string(kJpegStatusNoBuffer)},
    };
    for (const auto& c : cases) {
        try {
            WriteJPGFile(*c.surface, path, c.quality);
            ADD_FAILURE() << "no error for " << c.description;
        } catch (const JpegWriteError& error) {
            EXPECT_EQ(error.Number(), 26001);
            EXPECT_EQ(error.Source(), "slicewright_imaging_tests.mIntelJPEGLibrary");
            EXPECT_EQ(error.Description(), c.description);
        }
        EXPECT_EQ(contentsOf(path), "precious");
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 1);
}

TEST_F(JpegWriter, AnUnwritableTargetIsAFileWriteError) {
    cDIBSection surface;
    surface.CreateFromPicture(test::PhotoLikePicture(8, 8));
    EXPECT_THROW(WriteJPGFile(surface, folder.Path("no/such/folder.jpg"), 90), FileWriteError);
    std::filesystem::create_directory(folder.Path("taken.jpg"));
    EXPECT_THROW(WriteJPGFile(surface, folder.Path("taken.jpg"), 90), FileWriteError);
}

} // namespace
} // namespace sw
