#include "CutRun.h"
#include "JobPlanner.h"
#include "PieceEncoder.h"
#include "PngFile.h"
#include "Verification.h"
#include "WebpFile.h"
#include "common/AtomicFile.h"
#include "common/FileWriteError.h"
#include "imaging/BmpWriter.h"
#include "tests/imaging/ImageMagick.h"
#include "tests/imaging/TestPictures.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

namespace sw {
namespace {

class PieceFiles : public testing::Test {
protected:
    test::ScratchFolder folder;
    // Odd sizes, so that rows are padded in the picture and not in the files.
    Picture picture = test::PhotoLikePicture(37, 23).Clip(2, 3, 31, 17);
};

TEST_F(PieceFiles, PngIsReadPixelForPixelByAnIndependentDecoder) {
    WritePngFile(picture, folder.Path("a.png"));
    const test::RgbImage decoded = test::DecodeWithImageMagick(folder.Path("a.png"));
    ASSERT_EQ(decoded.width, 31);
    ASSERT_EQ(decoded.height, 17);
    for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < 31; ++x) {
            const std::uint32_t bgr = picture.PixelAt(x, y);
            const std::uint8_t* rgb = decoded.At(x, y);
            ASSERT_EQ(rgb[0], bgr & 0xFF) << x << "," << y;
            ASSERT_EQ(rgb[1], (bgr >> 8) & 0xFF);
            ASSERT_EQ(rgb[2], bgr >> 16);
        }
    }
    const Picture back = ReadPngFile(folder.Path("a.png"));
    EXPECT_EQ(back.PixelAt(30, 16), picture.PixelAt(30, 16));
}

TEST_F(PieceFiles, WebpKeepsThePictureCloseAndItsColoursInPlace) {
    WriteWebpFile(picture, folder.Path("a.webp"), 95);
    const test::RgbImage decoded = test::DecodeWithImageMagick(folder.Path("a.webp"));
    ASSERT_EQ(decoded.width, 31);
    double squares = 0;
    for (int y = 0; y < 17; ++y) {
        for (int x = 0; x < 31; ++x) {
            const std::uint32_t bgr = picture.PixelAt(x, y);
            const int expected[] = {int(bgr & 0xFF), int((bgr >> 8) & 0xFF), int(bgr >> 16)};
            for (int c = 0; c < 3; ++c) {
                const double d = expected[c] - decoded.At(x, y)[c];
                squares += d * d;
            }
        }
    }
    const double psnr = 10 * std::log10(255.0 * 255.0 / (squares / (31 * 17 * 3)));
    EXPECT_GT(psnr, 30.0);
    EXPECT_EQ(ReadWebpFile(folder.Path("a.webp")).Width(), 31);
}

TEST_F(PieceFiles, WriteFailuresNameTheFileAndKeepTheOldOne) {
    EXPECT_THROW(WritePngFile(picture, folder.Path("missing/a.png")), FileWriteError);
    EXPECT_THROW(WriteWebpFile(Picture::Filled(16384, 1, 0), folder.Path("w.webp"), 90),
                 FileWriteError);
    EXPECT_THROW((void)ReadPngFile(folder.Path("none.png")), std::runtime_error);
    EXPECT_THROW(SyncFileSystem(folder.Path("no folder")), FileWriteError);
}

TEST_F(PieceFiles, DeferredWritesReplaceWholeAndLeaveNoTemporaryFile) {
    const std::string name = folder.Path("a.png");
    WriteEncodedFile(EncodePng(picture, name), name, SyncMode::Deferred);
    WriteEncodedFile(EncodePng(Picture::Filled(3, 2, 0x123456), name), name, SyncMode::Deferred);
    SyncFileSystem(folder.Path());
    EXPECT_EQ(ReadPngFile(name).PixelAt(2, 1), 0x123456u);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()),
                            std::filesystem::directory_iterator()),
              1);
}

// Cuts the picture into 2 x 2 pieces of that format in the scratch folder.
PictureJob cutInFour(const test::ScratchFolder& folder, const Picture& picture,
                     PieceFormat format) {
    SavePicture(picture, folder.Path("p.bmp"));
    CutOptions options;
    options.pictures = {folder.Path("p.bmp")};
    options.gridRows = "2";
    options.gridColumns = "2";
    options.outFolder = folder.Path("out");
    options.format = format;
    options.quiet = true;
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(CutRun(options, out, err).Run(), 0) << err.str();
    return std::get<PictureJob>(PlanJob(options, options.pictures[0], {}));
}

TEST_F(PieceFiles, VerifyPassesUntouchedPiecesAndCatchesAChangedOne) {
    for (const PieceFormat format : {PieceFormat::Png, PieceFormat::Bmp}) {
        const PictureJob job = cutInFour(folder, picture, format);
        EXPECT_TRUE(VerifyPieces(picture, job.layout, format, 30).Passed());
        // One pixel of piece 3 changed on disk.
        const std::string piece = job.layout.pieces[2].FileName;
        const Picture original = ReadPiece(piece, format);
        const std::uint8_t* bottom =
            original.Row(0) - (original.Height() - 1) * original.RowPitch();
        std::vector<std::uint8_t> bytes(bottom, bottom + original.RowPitch() * original.Height());
        bytes[0] ^= 0x40;
        const Picture changed =
            Picture::FromBottomUpBgr(original.Width(), original.Height(), bytes);
        format == PieceFormat::Png ? WritePngFile(changed, piece) : SavePicture(changed, piece);
        const VerificationReport report = VerifyPieces(picture, job.layout, format, 30);
        ASSERT_EQ(report.problems.size(), 1u);
        EXPECT_NE(report.problems[0].find(piece + ": 1 pixels differ"), std::string::npos)
            << report.problems[0];
        std::filesystem::remove_all(folder.Path("out"));
    }
}

TEST_F(PieceFiles, VerifyCatchesMissingSwappedAndBlurredPieces) {
    const Picture photo = test::PhotoLikePicture(64, 48);
    const PictureJob job = cutInFour(folder, photo, PieceFormat::Jpg);
    const VerificationReport clean = VerifyPieces(photo, job.layout, PieceFormat::Jpg, 30);
    EXPECT_TRUE(clean.Passed()) << clean.problems[0];
    EXPECT_GT(clean.worstPsnr, 30);
    const std::string first = job.layout.pieces[0].FileName;
    const std::string last = job.layout.pieces[3].FileName;
    // Two pieces of one size swapped: each is read back whole but in the wrong place.
    std::filesystem::rename(first, first + ".tmp");
    std::filesystem::rename(last, first);
    std::filesystem::rename(first + ".tmp", last);
    EXPECT_EQ(VerifyPieces(photo, job.layout, PieceFormat::Jpg, 30).problems.size(), 2u);
    std::filesystem::remove(last);
    const VerificationReport missing = VerifyPieces(photo, job.layout, PieceFormat::Jpg, 30);
    EXPECT_NE(missing.problems.back().find(last + ": cannot be read back"), std::string::npos);
}

} // namespace
} // namespace sw
