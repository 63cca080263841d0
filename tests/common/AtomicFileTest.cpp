// AtomicFile: the permissions of a new file, the order that makes a write
// survive a power loss, and what is left on disk when a write fails part-way.
#include "common/AtomicFile.h"

#include "common/FileWriteError.h"
#include "tests/common/SmallTmpfs.h"
#include "tests/common/SyscallLog.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace sw {
namespace {

namespace fs = std::filesystem;
using test::SmallTmpfs;
using test::SyscallLog;

std::string contentsOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeFile(const std::string& path, const std::string& text) {
    AtomicFile file(path);
    file.Write(text);
    file.Commit();
}

mode_t modeOf(const std::string& path) {
    struct stat about {};
    ::stat(path.c_str(), &about);
    return about.st_mode & 07777;
}

// Every name in the folder: a temporary file left behind shows here.
std::vector<std::string> namesIn(const std::string& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class UnderUmask : public testing::Test {
protected:
    ~UnderUmask() override { ::umask(saved_); }
    mode_t saved_ = ::umask(022);
    SmallTmpfs disk_{1 << 20};
};

TEST_F(UnderUmask, NewFilesTakeTheModeTheUmaskLeaves) {
    ::umask(022);
    writeFile(disk_.Path("open.html"), "x");
    EXPECT_EQ(modeOf(disk_.Path("open.html")), 0644u);
    ::umask(077);
    writeFile(disk_.Path("private.html"), "x");
    EXPECT_EQ(modeOf(disk_.Path("private.html")), 0600u);
}

TEST_F(UnderUmask, AReplacedFileKeepsItsOwnMode) {
    writeFile(disk_.Path("kept.ple"), "old");
    ::chmod(disk_.Path("kept.ple").c_str(), 0640);
    writeFile(disk_.Path("kept.ple"), "new");
    EXPECT_EQ(modeOf(disk_.Path("kept.ple")), 0640u);
    EXPECT_EQ(contentsOf(disk_.Path("kept.ple")), "new");
}

TEST_F(UnderUmask, TheProcessUmaskIsNeverChanged) {
    SyscallLog().clear();
    writeFile(disk_.Path("a.bmp"), "x");
    EXPECT_EQ(std::count(SyscallLog().begin(), SyscallLog().end(), "umask"), 0);
}

TEST(AtomicFileOnDisk, DataIsSyncedBeforeTheRenameAndTheFolderAfterIt) {
    const SmallTmpfs disk(1 << 20);
    SyscallLog().clear();
    writeFile(disk.Path("Tile1.bmp"), "pixels");
    EXPECT_EQ(SyscallLog(), (std::vector<std::string>{"fsync file", "rename", "fsync folder"}));
}

TEST(AtomicFileOnDisk, UncommittedWriteLeavesTheTargetAndNoTemporaryFile) {
    const SmallTmpfs disk(1 << 20);
    writeFile(disk.Path("Tile1.bmp"), "old");
    {
        AtomicFile file(disk.Path("Tile1.bmp"));
        file.Write("half a pic");
    }
    EXPECT_EQ(contentsOf(disk.Path("Tile1.bmp")), "old");
    EXPECT_EQ(namesIn(disk.Path()), std::vector<std::string>{"Tile1.bmp"});
}

// A name of 255 bytes, the most a name can have, leaves no room for the
// temporary file's own additions: they must not make its name too long.
TEST(AtomicFileOnDisk, WritesNamesOfTheLongestLength) {
    const SmallTmpfs disk(1 << 20);
    const std::string name = std::string(251, 'n') + ".ple";
    writeFile(disk.Path(name), "old");
    writeFile(disk.Path(name), "new");
    EXPECT_EQ(contentsOf(disk.Path(name)), "new");
    EXPECT_EQ(namesIn(disk.Path()), std::vector<std::string>{name});
}

TEST(AtomicFileOnAFullDisk, FailsWithTheCauseAndKeepsTheOldFileWhole) {
    const SmallTmpfs disk(64 * 1024);
    writeFile(disk.Path("Tile1.bmp"), "old section");
    const std::string tooMuch(256 * 1024, 'x');
    try {
        AtomicFile file(disk.Path("Tile1.bmp"));
        file.Write(tooMuch);
        file.Commit();
        FAIL() << "a write past the end of the disk succeeded";
    } catch (const FileWriteError& error) {
        EXPECT_EQ(error.Reason(), "the disk is full");
        EXPECT_EQ(error.Path(), disk.Path("Tile1.bmp"));
    }
    EXPECT_EQ(contentsOf(disk.Path("Tile1.bmp")), "old section");
    EXPECT_EQ(namesIn(disk.Path()), std::vector<std::string>{"Tile1.bmp"});
}

TEST(AtomicFileOnAReadOnlyDisk, FailsBeforeWritingAnything) {
    SmallTmpfs disk(64 * 1024);
    writeFile(disk.Path("Tile1.bmp"), "old section");
    disk.MakeReadOnly();
    try {
        writeFile(disk.Path("Tile1.bmp"), "new");
        FAIL() << "a write to a read-only disk succeeded";
    } catch (const FileWriteError& error) {
        EXPECT_EQ(error.Reason(), "the folder is on a read-only file system");
    }
    EXPECT_EQ(contentsOf(disk.Path("Tile1.bmp")), "old section");
}

} // namespace
} // namespace sw
