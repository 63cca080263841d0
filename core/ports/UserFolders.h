#pragma once

#include <string>

namespace sw {

// The user's own folders, where a first run starts its dialogs: the program's
// folder is a system folder once installed, and no place to keep pictures.
class UserFolders {
public:
    virtual ~UserFolders() = default;
    // The user's Pictures folder, or the home folder where there is none.
    virtual std::string PicturesFolder() = 0;
    // Whether a folder of that name exists now.
    virtual bool FolderExists(const std::string& path) = 0;
};

} // namespace sw
