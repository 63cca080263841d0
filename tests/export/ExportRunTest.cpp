#include "export/ExportRun.h"

#include "session/Session.h"
#include "tests/export/RecordingEncoder.h"
#include "tools/scenario/ScriptedPorts.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>
#include <unistd.h>

namespace sw {
namespace {

namespace fs = std::filesystem;

// A session on a 300 x 200 picture cut by the worked example's lines, with
// the scripted ports writing to a transcript kept in memory.
struct ExportRunTest : testing::Test {
    std::ostringstream log;
    scripted::ScriptedPorts ports{log, nullptr};
    Session session{ports.ports};
    RecordingEncoder encoder;
    fs::path folder = fs::temp_directory_path() / ("slicewright-run-" + std::to_string(::getpid()));

    void SetUp() override {
        fs::remove_all(folder);
        fs::create_directories(folder);
        const Picture picture = Picture::Filled(300, 200, 0x808080);
        session.clipContainer.picture = picture;
        ports.picActual.SetPicture(picture);
        SessionState& s = session.state;
        s.hLines = {120, 50};
        s.vLines = {100};
        s.hLineCount = 2;
        s.vLineCount = 1;
        s.linesDrawn = true;
        s.SaveFormat = "JPG";
        s.HTMLOut = "N";
        log.str("");
    }
    void TearDown() override { fs::remove_all(folder); }

    void answer(const std::string& kind, std::vector<std::string> words) {
        ports.answers.Add(kind, std::move(words));
    }
    std::string name(const std::string& file) const { return (folder / file).string(); }
    bool logged(const std::string& text) const { return log.str().find(text) != std::string::npos; }
};

TEST_F(ExportRunTest, AFailedJpgAtTheLastSectionEndsTheRunWithoutHtmlOrClearQuestion) {
    encoder.failOn = name("Tile6.jpg");
    answer("save", {name("Tile.jpg")});
    RunExport(session, encoder);
    ports.answers.CheckAllUsed();
    EXPECT_EQ(encoder.calls.size(), 5u);
    EXPECT_TRUE(logged("box title=\"Error!\" text=\"JPG File Creation Error!!!\" icon=stop "
                       "buttons=OK -> OK\nform pointer=Default\n"));
    EXPECT_FALSE(logged("finish show"));
    EXPECT_FALSE(logged("Clear Verification"));
    // The lines stay, sorted, for another try.
    EXPECT_EQ(session.state.hLines, (OneBasedArray<i16>{50, 120}));
    EXPECT_TRUE(session.state.linesDrawn);
}

TEST_F(ExportRunTest, AGridBeyondSevenDigitNumbersIsRefusedBeforeTheDialog) {
    session.state.hLineCount = 4999; // 5000 x 2000 sections: one past the limit
    session.state.vLineCount = 1999;
    RunExport(session, encoder);
    EXPECT_TRUE(logged("box title=\"Too Many Sections\" text=\"The lines make 10000000 sections;"));
    EXPECT_FALSE(logged("dialog save"));
    session.state.vLineCount = 1; // the counts alone decide
    session.state.hLineCount = 2;
    answer("save", {""});
    RunExport(session, encoder);
    EXPECT_TRUE(logged("dialog save"));
}

} // namespace
} // namespace sw
