#include "common/AtomicFile.h"
#include "common/FileWriteError.h"
#include "common/Text.h"
#include "linefile/LineFile.h"
#include "linefile/LineFileText.h"
#include "session/Session.h"

namespace sw {
namespace {

std::string askFileName(Session& session) {
    PrepareLineFileDialog(session);
    session.ports.dlgPic.ShowSave();
    return session.ports.dlgPic.FileName;
}

bool mayOverwrite(Session& session, const std::string& trimmedName) {
    if (!session.ports.files.FileExists(trimmedName)) {
        return true;
    }
    const BoxResult answer =
        session.ports.boxes.Show({"File exists!", "File already exists.. overwrite?",
                                  BoxIcon::Question, BoxButtons::YesNo, BoxResult::No});
    return answer == BoxResult::Yes;
}

// Through a temporary file, so that a failed save leaves an older file of
// that name as it was.
void writeLineFile(Session& session, const std::string& fileName) {
    try {
        AtomicFile file(fileName);
        file.Write(LineFileBytes(session.state));
        file.Commit();
    } catch (const FileWriteError& error) {
        session.ports.boxes.Show(
            {"Cannot Save Lines",
             "The line file " + error.Path() + " could not be written:\r\n" + error.Reason(),
             BoxIcon::Exclamation, BoxButtons::OK, BoxResult::OK});
    }
}

} // namespace

void SaveLineFile(Session& session) {
    if (!session.state.linesDrawn) {
        session.ports.boxes.Show({"Cannot Continue", "There do not appear to be any lines drawn!",
                                  BoxIcon::Information, BoxButtons::OK, BoxResult::OK});
        return;
    }
    const std::string fileName = askFileName(session);
    const std::string trimmed = Trim(fileName);
    if (trimmed.empty() || !mayOverwrite(session, trimmed)) {
        return;
    }
    // Blanks at the end of a name are the user's: the file gets the name as typed.
    writeLineFile(session, fileName);
}

void mnuSaveLines_Click(Session& session) {
    SaveLineFile(session);
}

void PrepareLineFileDialog(Session& session) {
    FileDialog& dlg = session.ports.dlgPic;
    dlg.FileName.clear();
    // The program's folder is a system folder once installed: line files start
    // in the user's Pictures folder, where the pictures they fit are.
    dlg.InitDir = session.ports.userFolders.PicturesFolder();
    dlg.Filter = kLineFileFilter;
}

} // namespace sw
