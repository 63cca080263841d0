#pragma once

#include <string>

namespace sw {

struct AppInfo;
class FileSystem;

// Where Help finds its page: in the installed data folder when the program is
// installed (DataPath + "/help/MainHelp.htm"), else in the Help folder beside
// the program, where a build puts it.
std::string HelpPagePath(const AppInfo& app, FileSystem& files);

} // namespace sw
