#pragma once

#include <string>

namespace sw {

// Facts about the running program.
struct AppInfo {
    // The folder of the program file, without a closing separator.
    std::string Path;
    // The program's title, as windows and boxes show it.
    std::string Title = "Slicewright";
    // The program file's name without extension.
    std::string ExeName = "slicewright";
    // The installed data folder (help page and other files of the program),
    // or empty when the program runs from its build folder.
    std::string DataPath;
};

} // namespace sw
