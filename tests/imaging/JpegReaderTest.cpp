#include "imaging/JpegReader.h"

#include "qt/image/QtPictureLoader.h"
#include "tests/imaging/FileBytes.h"
#include "tests/imaging/FileCase.h"
#include "tests/imaging/ImageMagick.h"
#include "tests/imaging/TestPictures.h"

#include <QImage>
#include <QImageReader>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <vector>

namespace sw {
namespace {

using test::Bytes;

// Qt's own decode of the file, pixels as stored, as 0x00BBGGRR values.
std::vector<std::uint32_t> qtPixels(const std::string& path, QSize& size) {
    QImageReader reader(QString::fromStdString(path));
    reader.setAutoTransform(false);
    QImage image = reader.read();
    image.convertTo(QImage::Format_RGB32);
    size = image.size();
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb rgb = image.pixel(x, y);
            pixels.push_back(static_cast<std::uint32_t>(qBlue(rgb)) << 16 |
                             static_cast<std::uint32_t>(qGreen(rgb)) << 8 |
                             static_cast<std::uint32_t>(qRed(rgb)));
        }
    }
    return pixels;
}

// How many pixels of the picture differ from Qt's decode of the file; the
// sizes must agree.
int differencesFromQt(const Picture& picture, const std::string& path) {
    QSize size;
    const std::vector<std::uint32_t> qt = qtPixels(path, size);
    EXPECT_EQ(picture.Width(), size.width());
    EXPECT_EQ(picture.Height(), size.height());
    if (picture.Width() != size.width() || picture.Height() != size.height()) {
        return -1;
    }
    int differences = 0;
    for (int y = 0; y < picture.Height(); ++y) {
        for (int x = 0; x < picture.Width(); ++x) {
            differences +=
                picture.PixelAt(x, y) !=
                qt[static_cast<std::size_t>(y) * size.width() + static_cast<std::size_t>(x)];
        }
    }
    return differences;
}

struct JpegKind {
    std::string name;
    // ImageMagick's options that make this kind from its sample picture.
    std::string options;
};

void PrintTo(const JpegKind& kind, std::ostream* out) {
    *out << kind.name;
}

class TurboJpegAgreesWithQt : public testing::TestWithParam<JpegKind> {};

TEST_P(TurboJpegAgreesWithQt, PixelForPixel) {
    const test::ScratchFolder folder;
    const std::string path = folder.Path(GetParam().name + ".jpg");
    test::Convert("rose: " + GetParam().options + " '" + path + "'");
    JpegReader reader(path);
    ASSERT_TRUE(reader.HeaderRead());
    ASSERT_FALSE(reader.FourColour());
    std::string error;
    const std::optional<Picture> picture = reader.Decode(error);
    ASSERT_TRUE(picture) << error;
    EXPECT_EQ(differencesFromQt(*picture, path), 0);
    // The loader takes the same road and gives the same pixels.
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(path);
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    EXPECT_EQ(differencesFromQt(loaded.picture, path), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, TurboJpegAgreesWithQt,
    testing::Values(JpegKind{"baseline420", "-quality 90 -sampling-factor 2x2 -interlace none"},
                    JpegKind{"baseline444", "-quality 90 -sampling-factor 1x1"},
                    JpegKind{"baseline422", "-quality 75 -sampling-factor 2x1"},
                    JpegKind{"progressive", "-quality 85 -interlace Plane"},
                    JpegKind{"grey", "-colorspace Gray"},
                    // Odd sizes leave part of a block and of a chroma sample at the edges.
                    JpegKind{"odd", "-resize 37x23! -quality 90 -sampling-factor 2x2"},
                    JpegKind{"restarts", "-quality 80 -define jpeg:restart-interval=2"}),
    test::NameOfRow());

// An EXIF block whose one tag says the picture is to be turned a quarter
// clockwise (orientation 6), put right after the start-of-image marker.
Bytes withTurningTag(const Bytes& jpg) {
    const Bytes app1 = {0xFF, 0xE1, 0x00, 0x22, 'E', 'x', 'i', 'f', 0, 0, 'I', 'I',
                        42,   0,    8,    0,    0,   0, // TIFF header, first IFD at 8
                        1,    0,                        // one entry
                        0x12, 0x01, 3,    0,    1,   0,   0,   0,   6, 0, 0,   0, // orientation 6
                        0,    0,    0,    0};                                     // no further IFD
    Bytes out(jpg.begin(), jpg.begin() + 2);
    out.insert(out.end(), app1.begin(), app1.end());
    out.insert(out.end(), jpg.begin() + 2, jpg.end());
    return out;
}

TEST(JpegReader, ReadsAnExifRotatedPictureAsStored) {
    const test::ScratchFolder folder;
    const std::string upright = folder.Path("upright.jpg");
    test::Convert("rose: -quality 90 '" + upright + "'");
    const std::string path = folder.Path("rotated.jpg");
    test::WriteBytes(path, withTurningTag(test::ReadBytes(upright)));
    // The tag is there and means what it should: a decoder asked to apply it turns the picture.
    ASSERT_EQ(test::RunCommand("/usr/bin/identify -format '%[orientation]' '" + path + "'"),
              "RightTop");
    QImageReader turning(QString::fromStdString(path));
    turning.setAutoTransform(true);
    ASSERT_EQ(turning.read().size(), QSize(46, 70));
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(path);
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    EXPECT_EQ(loaded.picture.Width(), 70);
    EXPECT_EQ(loaded.picture.Height(), 46);
    EXPECT_EQ(differencesFromQt(loaded.picture, path), 0);
}

TEST(JpegReader, LeavesCmykToQtWhoseDecodeTheLoaderGives) {
    const test::ScratchFolder folder;
    const std::string path = folder.Path("cmyk.jpg");
    test::Convert("rose: -colorspace CMYK '" + path + "'");
    JpegReader reader(path);
    ASSERT_TRUE(reader.HeaderRead());
    EXPECT_TRUE(reader.FourColour());
    std::string error;
    EXPECT_FALSE(reader.Decode(error));
    EXPECT_FALSE(error.empty());
    const LoadedPicture loaded = QtPictureLoader().LoadPicture(path);
    ASSERT_TRUE(loaded.ok()) << loaded.error;
    EXPECT_EQ(differencesFromQt(loaded.picture, path), 0);
}

// Sizes claimed past the limits are refused before any pixel memory is
// taken: see HostilePictureTest. A start that leads to no frame header is
// no picture.
TEST(JpegReader, AStartWithNoFrameHeaderIsNoPicture) {
    const test::ScratchFolder folder;
    const Bytes garbage = {0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x02, 0x01, 0x02, 0x03};
    const std::string path = folder.Path("garbage.jpg");
    test::WriteBytes(path, garbage);
    EXPECT_EQ(QtPictureLoader().LoadPicture(path).error,
              "the file is not a BMP, JPG or GIF picture, or it is damaged");
}

} // namespace
} // namespace sw
