// Faults of the disk under every file the program writes: a disk that is
// full part-way through a file, and a folder on a read-only disk. The user
// is told which file and why, and no file already on the disk (a section,
// a table, a line file) is left changed or truncated.
#include "qt/image/QtPictureLoader.h"
#include "tests/common/SmallTmpfs.h"
#include "tools/scenario/ScenarioRunner.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace sw {
namespace {

namespace fs = std::filesystem;
using test::SmallTmpfs;

const std::string kPlasma = std::string(SLICEWRIGHT_TEST_DATA) + "/export-plasma.bmp";

std::string contentsOf(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// Every file on the disk with its bytes: what must survive a failed write.
std::map<std::string, std::string> everyFile(const std::string& folder) {
    std::map<std::string, std::string> files;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        files[entry.path().filename().string()] = contentsOf(entry.path());
    }
    return files;
}

// The program with the plasma picture open, one line across it and the
// table written to a file with the sections.
class WritesOnADisk : public testing::Test {
protected:
    void SetUp() override {
        run({"store SaveFormat \"BMP\"", "store HTMLOut \"F\"", "start",
             "answer open \"" + kPlasma + "\"", "event mnuOPen_Click",
             "event picActual_MouseMove 10 100", "event picActual_Click"});
    }

    void run(const std::vector<std::string>& lines) {
        for (const std::string& line : lines) {
            runner_.RunLine(line);
        }
    }

    void exportTo(const std::string& name, const std::vector<std::string>& answers) {
        run({"answer save \"" + name + "\"", "answer finish keep"});
        run(answers);
        run({"event mnuCreate_Click"});
    }

    void saveLinesTo(const std::string& name, const std::vector<std::string>& answers) {
        run({"answer save \"" + name + "\""});
        run(answers);
        run({"event mnuSaveLines_Click"});
    }

    bool told(const std::string& text) const {
        return transcript_.str().find(text) != std::string::npos;
    }

    std::ostringstream transcript_;
    QtPictureLoader loader_;
    scripted::ScenarioRunner runner_{transcript_, &loader_};
};

TEST_F(WritesOnADisk, AFullDiskLeavesEverySectionTableAndLineFileAsItWas) {
    const SmallTmpfs disk(512 * 1024);
    exportTo(disk.Path("Tile.bmp"), {"answer box No"});
    saveLinesTo(disk.Path("lines.ple"), {});
    disk.FillUp();
    const auto before = everyFile(disk.Path());
    ASSERT_EQ(before.size(), 5u); // two sections, the table, the line file, the filler

    exportTo(disk.Path("Tile.bmp"), {"answer box Yes"});
    EXPECT_TRUE(told("could not be written") && told("the disk is full")) << transcript_.str();
    saveLinesTo(disk.Path("lines.ple"), {"answer box Yes"});
    EXPECT_TRUE(told("box title=\"Cannot Save Lines\" text=\"The line file " +
                     disk.Path("lines.ple") + " could not be written:\\r\\nthe disk is full\""))
        << transcript_.str();
    EXPECT_EQ(everyFile(disk.Path()), before);
}

TEST_F(WritesOnADisk, ATableThatNoLongerFitsLeavesTheOldTable) {
    const SmallTmpfs disk(512 * 1024);
    exportTo(disk.Path("Tile.bmp"), {"answer box No"});
    const std::string oldTable = contentsOf(disk.Path("Tile.html"));
    // The sections are written; the disk fills up between the table's test and its write.
    runner_.Ports().files.AfterTest(disk.Path("Tile.html"), [&disk] { disk.FillUp(); });
    exportTo(disk.Path("Tile.bmp"), {"answer box Yes", "answer box Yes"});
    EXPECT_TRUE(told("box title=\"HTML Output Problem\" text=\"The HTML file " +
                     disk.Path("Tile.html") + " could not be written: the disk is full."))
        << transcript_.str();
    EXPECT_EQ(contentsOf(disk.Path("Tile.html")), oldTable);
}

TEST_F(WritesOnADisk, AReadOnlyDiskIsNamedAndNothingOnItChanges) {
    SmallTmpfs disk(512 * 1024);
    exportTo(disk.Path("Tile.bmp"), {"answer box No"});
    saveLinesTo(disk.Path("lines.ple"), {});
    disk.MakeReadOnly();
    const auto before = everyFile(disk.Path());

    exportTo(disk.Path("Tile.bmp"), {"answer box Yes"});
    EXPECT_TRUE(told("the folder is on a read-only file system")) << transcript_.str();
    saveLinesTo(disk.Path("lines.ple"), {"answer box Yes"});
    EXPECT_TRUE(told("The line file " + disk.Path("lines.ple") +
                     " could not be written:\\r\\nthe folder is on a read-only file system"));
    EXPECT_EQ(everyFile(disk.Path()), before);
}

} // namespace
} // namespace sw
