#include "window/PictureOpening.h"

#include "session/SectionLines.h"
#include "session/Session.h"
#include "window/WindowFitting.h"

#include <optional>

namespace sw {
namespace {

constexpr const char* kPictureFilter = "Picture Files |*.bmp;*.jpg;*.gif";

// Decodes the file before anything changes, so that a picture that cannot be
// opened leaves the open one, its lines and the remembered names as they were.
std::optional<Picture> decode(Session& session, const std::string& path) {
    const LoadedPicture loaded = session.ports.loader.LoadPicture(path);
    if (loaded.ok()) {
        return loaded.picture;
    }
    session.ports.boxes.Show({"Cannot Open Picture",
                              "The picture " + path + " could not be opened:\r\n" + loaded.error,
                              BoxIcon::Exclamation, BoxButtons::OK, BoxResult::OK});
    return std::nullopt;
}

void enableCommands(Controls& controls) {
    for (const Item item : {Item::mnuEdit, Item::mnuCreate, Item::mnuSaveLines, Item::mnuLoadLines,
                            Item::mnuPicAbout}) {
        controls.SetEnabled(item, true);
    }
}

// The common steps of both ways in, once the picture is decoded.
void OpenPicture(Session& session, const Picture& picture) {
    SessionState& s = session.state;
    Ports& ports = session.ports;
    s.LastOpenDir = FolderOfPicture(s.LastPicture);
    session.clipContainer.picture = picture;
    ports.controls.SetVisible(Item::picActual, true);
    ports.picActual.SetPicture(picture);
    const bool fittedNormal = ports.form.WindowState() != kWindowMaximised;
    if (fittedNormal) {
        FitNormalWindow(session);
    }
    enableCommands(ports.controls);
    ResetLines(session);
    ports.controls.SetVisible(Item::lblMousePos, true);
    s.pictureOpen = true;
    ports.controls.SetVisible(Item::tlbrMain, true);
    if (!fittedNormal) {
        FitMaximisedWindow(session);
    }
}

} // namespace

std::string FolderOfPicture(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return {};
    }
    // The root keeps its separator; any deeper folder loses it.
    return path.substr(0, slash == 0 ? 1 : slash);
}

void mnuOPen_Click(Session& session) {
    FileDialog& dlg = session.ports.dlgPic;
    dlg.FileName.clear();
    dlg.InitDir = session.state.LastOpenDir;
    dlg.Filter = kPictureFilter;
    dlg.ShowOpen();
    const std::string path = dlg.FileName;
    if (path.empty()) {
        return;
    }
    OpenChosenPicture(session, path);
}

void OpenChosenPicture(Session& session, const std::string& path) {
    const std::optional<Picture> picture = decode(session, path);
    if (!picture) {
        return;
    }
    NarrowWindow(session);
    session.state.LastPicture = path;
    session.ports.controls.SetCaption(Item::mnuLastCut, path);
    OpenPicture(session, *picture);
}

void mnuLastCut_Click(Session& session) {
    const std::optional<Picture> picture = decode(session, session.state.LastPicture);
    if (!picture) {
        return;
    }
    NarrowWindow(session);
    OpenPicture(session, *picture);
}

} // namespace sw
