#include "dialogs/HelpPage.h"

#include "ports/AppInfo.h"
#include "ports/FileSystem.h"

namespace sw {

std::string HelpPagePath(const AppInfo& app, FileSystem& files) {
    if (!app.DataPath.empty()) {
        const std::string installed = app.DataPath + "/help/MainHelp.htm";
        if (files.FileExists(installed)) {
            return installed;
        }
    }
    return app.Path + "/Help/MainHelp.htm";
}

} // namespace sw
