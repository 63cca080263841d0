#include "export/ExportRun.h"
#include "export/ImagingSectionEncoder.h"
#include "session/Session.h"
#include "tools/scenario/ScriptedPorts.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <unistd.h>

namespace sw {
namespace {

namespace fs = std::filesystem;

// The real writers, but the encoder refuses the section of one file name.
class RefusingEncoder : public ImagingSectionEncoder {
public:
    std::string refuse;
    std::optional<EncodedFile> Encode(const Picture& clip, const std::string& fileName,
                                      const std::string& saveFormat, i32 quality) override {
        if (fileName == refuse) {
            return std::nullopt;
        }
        return ImagingSectionEncoder::Encode(clip, fileName, saveFormat, quality);
    }
};

// A picture with no two sections alike, so that a section written from the
// wrong place or in the wrong file shows in the bytes.
Picture patternPicture(int width, int height) {
    std::vector<std::uint8_t> bytes(Picture::Stride(width) * static_cast<std::size_t>(height));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>((i * 2654435761u) >> 13);
    }
    return Picture::FromBottomUpBgr(width, height, std::move(bytes));
}

// What one export leaves: the transcript of every port call and every file.
struct Outcome {
    std::string transcript;
    std::map<std::string, std::string> files;
    OneBasedArray<i16> hLines;
    bool linesDrawn = false;
};

// One export of a 4 x 5 grid (20 sections) into a fresh folder, with the
// given threads; `prepare` may put something in the way first.
class ExportOnThreads {
public:
    fs::path folder = fs::temp_directory_path() / ("slicewright-par-" + std::to_string(::getpid()));
    RefusingEncoder encoder;
    std::function<void()> prepare = [] {};
    // Cancel is pressed once this many sections are through; 0 for never.
    int cancelAt = 0;

    Outcome Run(const std::string& format, int threads) {
        fs::remove_all(folder);
        fs::create_directories(folder);
        prepare();
        std::ostringstream log;
        scripted::ScriptedPorts ports{log, nullptr};
        Session session{ports.ports};
        setUp(session, ports, format);
        session.exportThreads = threads;
        ports.exportDialogs.showProgress = true;
        ports.exportDialogs.cancelAt = cancelAt;
        ports.answers.Add("save", {(folder / ("Tile." + format)).string()});
        ports.answers.Add("finish", {"keep"});
        ports.answers.Add("box", {"No"});
        RunExport(session, encoder);
        Outcome outcome{log.str(), readFiles(), session.state.hLines, session.state.linesDrawn};
        fs::remove_all(folder);
        return outcome;
    }

private:
    static void setUp(Session& session, scripted::ScriptedPorts& ports, const std::string& format) {
        const Picture picture = patternPicture(301, 203);
        session.clipContainer.picture = picture;
        ports.picActual.SetPicture(picture);
        SessionState& s = session.state;
        s.hLines = {150, 40, 77};
        s.vLines = {200, 33, 120, 250};
        s.hLineCount = 3;
        s.vLineCount = 4;
        s.linesDrawn = true;
        s.SaveFormat = format == "bmp" ? "BMP" : "JPG";
        s.JPGComp = 85;
        s.HTMLOut = "N";
    }

    std::map<std::string, std::string> readFiles() const {
        std::map<std::string, std::string> files;
        for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
            std::ifstream in(entry.path(), std::ios::binary);
            std::ostringstream bytes;
            bytes << in.rdbuf();
            files[entry.path().filename().string() + (entry.is_directory() ? "/" : "")] =
                bytes.str();
        }
        return files;
    }
};

void expectSameOutcome(const Outcome& single, const Outcome& parallel, const std::string& what) {
    EXPECT_EQ(single.transcript, parallel.transcript) << what;
    EXPECT_EQ(single.hLines, parallel.hLines) << what;
    EXPECT_EQ(single.linesDrawn, parallel.linesDrawn) << what;
    ASSERT_EQ(single.files.size(), parallel.files.size()) << what;
    for (const auto& [name, bytes] : single.files) {
        ASSERT_TRUE(parallel.files.count(name)) << what << ": " << name;
        EXPECT_TRUE(parallel.files.at(name) == bytes) << what << ": " << name << " differs";
    }
}

TEST(ParallelExport, WritesTheSameFilesAndTranscriptAsOneThread) {
    for (const std::string format : {"jpg", "bmp"}) {
        ExportOnThreads run;
        const Outcome single = run.Run(format, 1);
        ASSERT_EQ(single.files.size(), 20u);
        ASSERT_NE(single.transcript.find("finish show"), std::string::npos);
        for (const int threads : {2, 3, 8}) {
            expectSameOutcome(single, run.Run(format, threads),
                              format + " on " + std::to_string(threads) + " threads");
        }
    }
}

// A failure at the first, a middle and the last section, from the encoder
// and from a file that cannot be written: the sections before it are
// written, none after it, and the user hears the same.
TEST(ParallelExport, AFailureAtAnySectionLeavesWhatOneThreadLeaves) {
    for (const int failing : {1, 9, 20}) {
        const std::string name = "Tile" + std::to_string(failing) + ".jpg";
        ExportOnThreads refused;
        refused.encoder.refuse = (refused.folder / name).string();
        ExportOnThreads blocked;
        blocked.prepare = [&] { fs::create_directories(blocked.folder / name); };
        for (ExportOnThreads* run : {&refused, &blocked}) {
            const Outcome single = run->Run("jpg", 1);
            const std::size_t fileCount = static_cast<std::size_t>(failing) - 1;
            EXPECT_EQ(single.files.size(), fileCount + (run == &blocked ? 1 : 0)) << name;
            EXPECT_NE(single.transcript.find("box title=\"Error!\""), std::string::npos);
            EXPECT_EQ(single.transcript.find("finish show"), std::string::npos);
            EXPECT_TRUE(single.linesDrawn);
            for (const int threads : {2, 4}) {
                expectSameOutcome(single, run->Run("jpg", threads),
                                  name + " on " + std::to_string(threads) + " threads");
            }
        }
    }
}

// Cancel after the first, a middle and the last but one section: the
// sections through stay, whole, and nothing after them is written.
TEST(ParallelExport, ACancelLeavesWhatOneThreadLeaves) {
    for (const int cancelAt : {1, 9, 19}) {
        ExportOnThreads run;
        run.cancelAt = cancelAt;
        const Outcome single = run.Run("jpg", 1);
        EXPECT_EQ(single.files.size(), static_cast<std::size_t>(cancelAt));
        EXPECT_NE(single.transcript.find("box title=\"Sections Cancelled\""), std::string::npos);
        EXPECT_EQ(single.transcript.find("finish show"), std::string::npos);
        EXPECT_TRUE(single.linesDrawn);
        for (const int threads : {2, 4}) {
            expectSameOutcome(single, run.Run("jpg", threads),
                              "cancel at " + std::to_string(cancelAt) + " on " +
                                  std::to_string(threads) + " threads");
        }
    }
}

} // namespace
} // namespace sw
