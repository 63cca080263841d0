// A settings file that cannot be read, that is no INI file, or that lies on
// a full disk: the start takes the defaults, the terminal names the file and
// the cause, and the file is never written over or truncated.
#include "qt/QtSettingsStore.h"
#include "tests/common/SmallTmpfs.h"

#include <QSettings>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace sw {
namespace {

namespace fs = std::filesystem;
using test::SmallTmpfs;

constexpr const char* kApplication = "Corvane-Studio";
constexpr const char* kSection = "Slicewright";

std::string contentsOf(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeText(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

// The configuration folder on a disk of the test's own.
class SettingsOnADisk : public testing::Test {
protected:
    // QSettings learns the folder once a process; setPath moves it for each test.
    SettingsOnADisk() {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                           QString::fromStdString(disk_.Path()));
    }

    std::string iniPath() const { return disk_.Path(std::string(kApplication) + ".ini"); }
    std::string read(const char* key, const char* defaultValue) {
        return store_.GetSetting(kApplication, kSection, key, defaultValue);
    }
    void save(const char* key, const char* value) {
        store_.SaveSetting(kApplication, kSection, key, value);
    }

    SmallTmpfs disk_{256 * 1024};
    qt::QtSettingsStore store_;
};

TEST_F(SettingsOnADisk, AFileThatIsNoIniFileGivesTheDefaultsAndIsKept) {
    const std::string garbage =
        std::string("\0\xff garbage [[[\n[Slicewright\nJPGComp\n", 37) + "=== \n[Other]\nkeep=1\n";
    writeText(iniPath(), garbage);
    testing::internal::CaptureStderr();
    EXPECT_EQ(read("JPGComp", "90"), "90");
    save("JPGComp", "75");
    save("LastPicture", "/a.bmp");
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "slicewright: the settings file " + iniPath() +
                  " is not a valid INI file; it is left as it is, and the settings of this "
                  "session are not saved in it\n");
    EXPECT_EQ(contentsOf(iniPath()), garbage);
}

TEST_F(SettingsOnADisk, AFileThatCannotBeReadGivesTheDefaultsAndIsKept) {
    fs::create_directory(iniPath()); // a folder in the file's place reads as nothing
    writeText(iniPath() + "/inside", "kept");
    testing::internal::CaptureStderr();
    EXPECT_EQ(read("SaveFormat", "BMP"), "BMP");
    save("SaveFormat", "JPG");
    EXPECT_NE(testing::internal::GetCapturedStderr().find(iniPath() + " cannot be read"),
              std::string::npos);
    EXPECT_EQ(contentsOf(iniPath() + "/inside"), "kept");
}

TEST_F(SettingsOnADisk, AFullDiskKeepsTheOldFileWhole) {
    save("LastOpenDir", "/home/user/Pictures");
    const std::string before = contentsOf(iniPath());
    disk_.FillUp();
    testing::internal::CaptureStderr();
    save("LastOpenDir", std::string(8192, 'x').c_str());
    EXPECT_NE(testing::internal::GetCapturedStderr().find(iniPath() + " could not be written"),
              std::string::npos);
    EXPECT_EQ(contentsOf(iniPath()), before);
}

} // namespace
} // namespace sw
