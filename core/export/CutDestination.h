#pragma once

#include <string>

namespace sw {

// Where the sections of one run go, as the save dialog gave it.
struct CutDestination {
    // The folder, closing separator included; empty when the name had none
    // and no folder was remembered.
    std::string Folder;
    // The chosen file name without folder and extension, case kept.
    std::string BaseName;
    // ".bmp" or ".jpg", always lower case, whatever the user typed.
    std::string Extension;
};

} // namespace sw
