#pragma once

namespace sw {

struct Session;

// The file type of line files in both dialogs.
inline constexpr const char* kLineFileFilter = "Slicewright Files |*.ple;";

// Readies dlgPic for a line file: no name yet, the program's folder (line
// files are kept apart from the pictures and the sections), the line filter.
void PrepareLineFileDialog(Session& session);

// Writes the line set to a file the user chooses.
void SaveLineFile(Session& session);
// Replaces the line set by the lines of a file the user chooses: all of them,
// or none when the file is corrupt.
void LoadLineFile(Session& session);

void mnuSaveLines_Click(Session& session);
void mnuLoadLines_Click(Session& session);

} // namespace sw
