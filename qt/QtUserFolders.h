#pragma once

#include "ports/UserFolders.h"

namespace sw::qt {

// The Pictures folder from the desktop's user folders (XDG), the home folder
// where that folder does not exist.
class QtUserFolders : public UserFolders {
public:
    std::string PicturesFolder() override;
    bool FolderExists(const std::string& path) override;
};

} // namespace sw::qt
