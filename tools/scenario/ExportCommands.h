#pragma once

namespace sw::scripted {

class ScenarioRunner;

// Script commands for the files around an export:
//   folder "path"            makes a folder (and its parents)
//   file "path" "text"       makes a file holding that text
//   show "path"              prints the file's bytes, quoted, into the transcript
//   files "folder"           prints the names of the files in a folder, sorted
//   image "path"             decodes a picture file, printing its size (and top-left
//                            pixel, but for a JPG)
//   progress show            prints a line for each section of every later export
//   progress cancel N        presses Cancel in the next export once N sections are through
void AddExportCommands(ScenarioRunner& runner);

} // namespace sw::scripted
