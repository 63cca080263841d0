#pragma once

#include <string>

namespace sw {

struct Session;
class frmAbout;

// Edit, Set JPG Compression: the quality dialog, modal.
void mnuJPGComp_Click(Session& session);
// About, Program: the one about window, beside the main window.
void mnuProgram_Click(Session& session);
// Help: the help page beside the program, in the desktop's browser.
void mnuHelp_Click(Session& session);
// About, This Picture: the picture's size in a box.
void mnuPicAbout_Click(Session& session);

// The text of This Picture for a picture box of that size in twips.
std::string PictureFactsText(float widthTwips, float heightTwips);

// Raises an event of the about window on the screen, if there is one, and
// lets the window go when the event unloaded the form.
void RaiseAboutEvent(Session& session, void (frmAbout::*event)());

} // namespace sw
