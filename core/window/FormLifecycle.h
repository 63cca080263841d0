#pragma once

namespace sw {

struct Session;

// Start: note the window's margins, read the settings, prepare mnuLastCut.
void Form_Load(Session& session);
// The form is closing: the settings are written.
void Form_Unload(Session& session);
// File, Exit: write the settings, then unload (which writes them again).
void mnuExit_Click(Session& session);

} // namespace sw
