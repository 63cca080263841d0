#pragma once

#include <string>

namespace sw {

struct Session;

// File, Open: choose a picture with the dialog and open it.
void mnuOPen_Click(Session& session);
// Opens a picture named outside the dialog (the program's command line) the
// way File, Open opens the dialog's choice: same steps, same messages.
void OpenChosenPicture(Session& session, const std::string& path);
// The remembered item: open LastPicture again.
void mnuLastCut_Click(Session& session);

// The folder part of a picture path as LastOpenDir keeps it: without a
// closing separator, except for the root, which keeps its "/".
std::string FolderOfPicture(const std::string& path);

} // namespace sw
