#include "export/HtmlOutput.h"

#include "common/AtomicFile.h"
#include "common/FileWriteError.h"
#include "dialogs/frmFinish.h"
#include "dialogs/frmHTML.h"
#include "export/HtmlTable.h"
#include "export/SaveName.h"
#include "ports/ExportDialogs.h"
#include "session/Session.h"

#include <optional>

namespace sw {
namespace {

constexpr const char* kFinishedCaption = "Your picture has been successfully dissected! \r\n"
                                         "Would you like some HTML to go along with it?";

std::optional<std::string> askOtherName(Session& session) {
    FileDialog& dlg = session.ports.dlgPic;
    dlg.InitDir = session.state.LastSaveDir;
    dlg.FileName.clear();
    dlg.Filter = "HTML Files (*.html)|*.html";
    dlg.DialogTitle = "Supply File name for HTML Export";
    dlg.ShowSave();
    if (dlg.FileName.empty()) {
        return std::nullopt;
    }
    return TableFileNameFromDialog(dlg.FileName);
}

// The default name, or the one the user gives instead; nothing when the user
// will not have a table after all.
std::optional<std::string> chooseTableName(Session& session, const std::string& name) {
    if (!session.ports.files.FileExists(name)) {
        return name;
    }
    const BoxResult answer = session.ports.boxes.Show(
        {"HTML Output Problem", "The file " + name + " already exists.  Overwrite?",
         BoxIcon::Question, BoxButtons::YesNoCancel, BoxResult::Yes});
    if (answer == BoxResult::Yes) {
        return name;
    }
    if (answer == BoxResult::No) {
        return askOtherName(session);
    }
    return std::nullopt;
}

// The text is complete before the file is touched, and a failed write leaves
// an older file of that name as it was.
bool writeText(Session& session, const std::string& name, const std::string& text) {
    try {
        AtomicFile file(name);
        file.Write(text);
        file.Commit();
        return true;
    } catch (const FileWriteError& error) {
        session.ports.boxes.Show({"HTML Output Problem",
                                  "The HTML file " + error.Path() + " could not be written: " +
                                      error.Reason() + ".\r\nThe section files are all written.",
                                  BoxIcon::Exclamation, BoxButtons::OK, BoxResult::OK});
        return false;
    }
}

} // namespace

bool WriteTableFile(Session& session, const CutPlan& plan, const SectionCells& cells) {
    const std::string defaultName = plan.Destination.Folder + plan.Destination.BaseName + ".html";
    const std::optional<std::string> name = chooseTableName(session, defaultName);
    if (!name) {
        return true;
    }
    return writeText(session, *name, TableText(BuildTableLines(cells, plan.Columns)));
}

void ShowTableOnScreen(Session& session, const SectionCells& cells, i32 columns) {
    frmHTML form(session.ports.clipboard);
    form.rtxtHTML.Text = TableText(BuildTableLines(cells, columns));
    session.ports.exportDialogs.ShowHtml(form);
}

bool OfferHTML(Session& session, const CutPlan& plan, const SectionCells& cells) {
    SessionState& s = session.state;
    frmFinish finish;
    finish.StatusCaption = kFinishedCaption;
    finish.OutputType = s.HTMLOut;
    session.ports.exportDialogs.ShowFinish(finish);
    // Remembered whatever follows: a table cancelled later still leaves "F"
    // as the next run's default.
    s.HTMLOut = finish.OutputType;
    if (s.HTMLOut == "F") {
        return WriteTableFile(session, plan, cells);
    }
    if (s.HTMLOut == "S") {
        ShowTableOnScreen(session, cells, plan.Columns);
    }
    return true;
}

} // namespace sw
