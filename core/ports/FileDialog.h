#pragma once

#include <string>

namespace sw {

// The one file dialog of the main window (dlgPic), shared by every command.
// Its properties are plain text; after a Show, FileName holds the chosen path,
// or the empty text when the user cancelled.
class FileDialog {
public:
    virtual ~FileDialog() = default;

    std::string FileName;
    std::string InitDir;
    // Label and pattern pairs joined by "|".
    std::string Filter;
    // Left as the last user left it: the open command sets none.
    std::string DialogTitle;

    virtual void ShowOpen() = 0;
    virtual void ShowSave() = 0;
};

} // namespace sw
