#include "dialogs/DialogCommands.h"

#include "common/Numbers.h"
#include "dialogs/HelpPage.h"
#include "dialogs/frmAbout.h"
#include "dialogs/frmJPGComp.h"
#include "session/Session.h"

#include <memory>

namespace sw {
namespace {

// Always 15 twips to the pixel, whatever the display's own measure is.
std::string pixels(float twips) {
    return FormatSingle(twips / kTwipsPerPixel);
}

} // namespace

void mnuJPGComp_Click(Session& session) {
    frmJPGComp form(session);
    form.Form_Load();
    session.ports.jpgCompDialog.ShowJpgComp(form);
}

void mnuProgram_Click(Session& session) {
    AboutWindow& window = session.ports.aboutWindow;
    if (window.OpenForm() != nullptr) {
        window.BringToFront();
        return;
    }
    auto form = std::make_unique<frmAbout>(session.ports);
    form->Form_Load();
    window.Show(std::move(form));
}

void mnuHelp_Click(Session& session) {
    session.ports.shell.OpenDocument(HelpPagePath(session.ports.app, session.ports.files));
}

std::string PictureFactsText(float widthTwips, float heightTwips) {
    return "Picture Attributes: \r\nHeight: " + pixels(heightTwips) +
           " (pixels)\r\nWidth : " + pixels(widthTwips) + " (pixels)\r\n";
}

void mnuPicAbout_Click(Session& session) {
    const PictureBox& box = session.ports.picActual;
    session.ports.boxes.Show({session.ports.app.Title, PictureFactsText(box.Width(), box.Height()),
                              BoxIcon::None, BoxButtons::OK, BoxResult::OK});
}

void RaiseAboutEvent(Session& session, void (frmAbout::*event)()) {
    AboutWindow& window = session.ports.aboutWindow;
    frmAbout* form = window.OpenForm();
    if (form == nullptr) {
        return;
    }
    (form->*event)();
    if (form->Unloaded()) {
        window.Close();
    }
}

} // namespace sw
