// Where Help looks for its page: installed, or beside the program in a build.
#include "dialogs/HelpPage.h"

#include "ports/AppInfo.h"
#include "ports/FileSystem.h"

#include <gtest/gtest.h>
#include <set>

namespace sw {
namespace {

class KnownFiles : public FileSystem {
public:
    explicit KnownFiles(std::set<std::string> files) : files_(std::move(files)) {}
    bool FileExists(const std::string& path) override { return files_.count(path) != 0; }

private:
    std::set<std::string> files_;
};

AppInfo app(std::string path, std::string dataPath) {
    AppInfo info;
    info.Path = std::move(path);
    info.DataPath = std::move(dataPath);
    return info;
}

TEST(HelpPage, InstalledProgramOpensThePageInItsDataFolder) {
    KnownFiles files({"/usr/share/slicewright/help/MainHelp.htm"});
    EXPECT_EQ(HelpPagePath(app("/usr/bin", "/usr/share/slicewright"), files),
              "/usr/share/slicewright/help/MainHelp.htm");
}

TEST(HelpPage, BuildFolderProgramOpensThePageBesideIt) {
    // A build has no data folder; one whose page is missing does not count.
    KnownFiles none({});
    EXPECT_EQ(HelpPagePath(app("/src/build/app", ""), none), "/src/build/app/Help/MainHelp.htm");
    EXPECT_EQ(HelpPagePath(app("/src/build/app", "/src/build/share/slicewright"), none),
              "/src/build/app/Help/MainHelp.htm");
}

} // namespace
} // namespace sw
