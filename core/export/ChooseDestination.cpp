#include "export/ChooseDestination.h"

#include "common/Text.h"
#include "export/SaveName.h"
#include "session/Session.h"

namespace sw {
namespace {

constexpr const char* kBitmapFirst = "Bitmap Files |*.bmp|JPEG Files |*.jpg";
constexpr const char* kJpegFirst = "JPEG Files |*.jpg|Bitmap Files |*.bmp";

void showSaveDialog(FileDialog& dlg, const SessionState& s) {
    dlg.InitDir = s.LastSaveDir;
    dlg.Filter = s.SaveFormat == "BMP" ? kBitmapFirst : kJpegFirst;
    dlg.DialogTitle = "Choose folder to save sections in";
    dlg.ShowSave();
}

void refuseEnding(Session& session, const std::string& fileName) {
    session.ports.boxes.Show(
        {"Unknown file type!",
         "Unsupported file type: (*." + UpperCase(RightChars(fileName, 3)) + ")",
         BoxIcon::Exclamation, BoxButtons::OK, BoxResult::OK});
}

// A remembered folder may lack its closing separator (the first default is
// the program's folder); the files still go into it, not beside it.
std::string folderOf(const std::string& lastSaveDir) {
    if (lastSaveDir.empty() || lastSaveDir.back() == '/') {
        return lastSaveDir;
    }
    return lastSaveDir + '/';
}

CutDestination destinationOf(SessionState& s, const std::string& fileName) {
    const SplitName split = SplitChosenName(fileName);
    if (split.Folder) {
        s.LastSaveDir = *split.Folder;
    }
    return {folderOf(s.LastSaveDir), split.BaseName, ExtensionOfFormat(s.SaveFormat)};
}

} // namespace

// The dialog empties FileName on a cancel, so a cancel after a refused name
// ends the run just as one on the first showing does.
std::optional<CutDestination> ChooseDestination(Session& session) {
    FileDialog& dlg = session.ports.dlgPic;
    SessionState& s = session.state;
    dlg.FileName.clear();
    for (;;) {
        showSaveDialog(dlg, s);
        if (Trim(dlg.FileName).empty()) {
            return std::nullopt;
        }
        if (const std::optional<std::string> format = FormatOfName(dlg.FileName)) {
            s.SaveFormat = *format;
            return destinationOf(s, dlg.FileName);
        }
        refuseEnding(session, dlg.FileName);
    }
}

} // namespace sw
