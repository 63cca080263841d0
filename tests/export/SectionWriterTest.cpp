#include "export/SectionWriter.h"

#include "common/FileWriteError.h"
#include "export/HtmlTable.h"
#include "export/ImagingSectionEncoder.h"
#include "export/SectionGrid.h"
#include "imaging/ClipContainer.h"
#include "tests/export/RecordingEncoder.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace sw {
namespace {

// A picture whose pixel at (x, y) is 0x00yyxx with x, y below 256.
Picture coordinatePicture(int width, int height) {
    std::vector<std::uint8_t> bytes(Picture::Stride(width) * static_cast<std::size_t>(height));
    for (int y = 0; y < height; ++y) {
        std::uint8_t* row =
            bytes.data() + Picture::Stride(width) * static_cast<std::size_t>(height - 1 - y);
        for (int x = 0; x < width; ++x) {
            row[3 * x + 1] = static_cast<std::uint8_t>(y);
            row[3 * x + 2] = static_cast<std::uint8_t>(x);
        }
    }
    return Picture::FromBottomUpBgr(width, height, std::move(bytes));
}

CutPlan planOf(std::initializer_list<i16> h, std::initializer_list<i16> v) {
    const OneBasedArray<i16> hLines(h);
    const OneBasedArray<i16> vLines(v);
    return BuildSectionGrid({hLines, static_cast<i16>(h.size())},
                            {vLines, static_cast<i16>(v.size())}, 300 * 15, 200 * 15,
                            {"out/", "Tile", ".jpg"});
}

struct Writing {
    ClipContainer clip{coordinatePicture(300, 200)};
    std::string format = "JPG";
    RecordingEncoder encoder;
    SectionCells cells;
    int threads = 1;

    std::optional<SectionFailure> write(const CutPlan& plan) {
        SectionOutput output{clip, format, 75, encoder};
        output.threads = threads;
        return WriteSections(output, plan, cells);
    }
};

TEST(WriteSections, HandsEachClipOfTheCleanPictureToTheRoadOfItsFormat) {
    Writing w;
    ASSERT_FALSE(w.write(planOf({50, 120}, {100})));
    ASSERT_EQ(w.encoder.calls.size(), 6u);
    const RecordingEncoder::Call& fourth = w.encoder.calls[3];
    EXPECT_EQ(fourth.road, "jpg75");
    EXPECT_EQ(fourth.fileName, "out/Tile4.jpg");
    EXPECT_EQ(fourth.width, 200);
    EXPECT_EQ(fourth.height, 70);
    EXPECT_EQ(fourth.topLeft, 0x003264u); // x 100, y 50
    EXPECT_EQ(w.cells.UBound(), 6);
    EXPECT_EQ(w.cells(4), CellText("Tile4.jpg"));

    // Only "BMP" exactly takes the BMP road; any other value is JPG.
    for (const char* format : {"BMP", "bmp", ""}) {
        Writing again;
        again.format = format;
        again.write(planOf({}, {}));
        EXPECT_EQ(again.encoder.calls.at(0).road, std::string(format) == "BMP" ? "bmp" : "jpg75");
    }
}

TEST(WriteSections, StopsAtTheFirstFailureWhereverItStands) {
    for (const int failing : {1, 3, 6}) {
        for (const int threads : {1, 2, 4}) {
            Writing w;
            w.encoder.failOn = "out/Tile" + std::to_string(failing) + ".jpg";
            w.threads = threads;
            const std::optional<SectionFailure> failure = w.write(planOf({50, 120}, {100}));
            ASSERT_TRUE(failure);
            EXPECT_EQ(failure->kind, SectionFailure::Kind::Encoder);
            EXPECT_EQ(failure->path, w.encoder.failOn);
            EXPECT_EQ(w.encoder.calls.size(), static_cast<std::size_t>(failing) - 1)
                << "no section after the failed one is written, " << threads << " threads";
            EXPECT_EQ(w.cells.UBound(), failing - 1);
        }
    }
}

// Files are synced once, after the last one is written, also when the run
// stopped early: what was written must survive a power loss either way.
TEST(WriteSections, PutsTheRunsFilesOnTheDiskOnceAtTheEnd) {
    for (const int threads : {1, 4}) {
        Writing whole;
        whole.threads = threads;
        ASSERT_FALSE(whole.write(planOf({50, 120}, {100})));
        EXPECT_EQ(whole.encoder.finishedRuns,
                  (std::vector<std::pair<std::string, std::size_t>>{{"out/", 6}}));

        Writing stopped;
        stopped.threads = threads;
        stopped.encoder.failOn = "out/Tile3.jpg";
        ASSERT_TRUE(stopped.write(planOf({50, 120}, {100})));
        EXPECT_EQ(stopped.encoder.finishedRuns,
                  (std::vector<std::pair<std::string, std::size_t>>{{"out/", 2}}));
    }
    // A disk that refuses the sync fails a run that had gone well, naming the folder.
    Writing refused;
    refused.encoder.refuseSync = true;
    const std::optional<SectionFailure> failure = refused.write(planOf({50}, {}));
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->kind, SectionFailure::Kind::File);
    EXPECT_EQ(failure->path, "out/");
    EXPECT_EQ(refused.encoder.calls.size(), 2u);
}

TEST(WriteSections, SectionsWithoutAreaGetAnEmptyCellAndNoFile) {
    Writing w;
    // Two lines at 50 and a column beyond the right edge of the 300 pixels:
    // the middle row (4, 5, 6) and the right column (3, 9) have nothing to cut;
    // sections 2 and 8 are cut to the picture's right edge.
    ASSERT_FALSE(w.write(planOf({50, 50}, {100, 400})));
    std::vector<std::string> written;
    for (const RecordingEncoder::Call& call : w.encoder.calls) {
        written.push_back(call.fileName + " " + std::to_string(call.width) + "x" +
                          std::to_string(call.height));
    }
    EXPECT_EQ(written,
              (std::vector<std::string>{"out/Tile1.jpg 100x50", "out/Tile2.jpg 200x50",
                                        "out/Tile7.jpg 100x150", "out/Tile8.jpg 200x150"}));
    ASSERT_EQ(w.cells.UBound(), 9);
    EXPECT_EQ(w.cells(3), EmptyCellText());
    EXPECT_EQ(w.cells(9), EmptyCellText());
    EXPECT_EQ(w.cells(8), CellText("Tile8.jpg"));
}

TEST(ImagingSectionEncoder, AnEncoderFailureIsAFailedWriteAndLeavesNoFile) {
    const std::string path =
        (std::filesystem::temp_directory_path() / "slicewright-refused.jpg").string();
    std::filesystem::remove(path);
    ImagingSectionEncoder encoder;
    const Picture clip = Picture::Filled(8, 8, 0x336699);
    EXPECT_FALSE(encoder.Encode(clip, path, "JPG", 0));
    EXPECT_FALSE(std::filesystem::exists(path));
    const std::optional<EncodedFile> jpg = encoder.Encode(clip, path, "JPG", 90);
    ASSERT_TRUE(jpg);
    EXPECT_FALSE(std::filesystem::exists(path)) << "encoding alone writes nothing";
    encoder.Write(*jpg, path);
    EXPECT_TRUE(std::filesystem::exists(path));
    std::filesystem::remove(path);
    const std::optional<EncodedFile> bmp = encoder.Encode(clip, path, "BMP", 0);
    ASSERT_TRUE(bmp);
    EXPECT_THROW(encoder.Write(*bmp, "/nonexistent-folder/x.bmp"), FileWriteError);
    EXPECT_THROW(encoder.Encode(Picture(), "x.bmp", "BMP", 0), FileWriteError);
}

} // namespace
} // namespace sw
