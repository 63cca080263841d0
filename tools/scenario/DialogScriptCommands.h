#pragma once

namespace sw::scripted {

class ScenarioRunner;

// The script commands for line files and the dialogs:
//   registry "HKLM/KEY/..." "NAME" sz "text" | dword 0x12345678
//   sysinfo "PATH"          the desktop's system-information program
//   program "PATH"          a program file that starts
//   folder "PATH"           makes a folder (and those above it)
//   file "PATH" "BYTES"     writes a file with these bytes (escapes allowed)
//   bytes "PATH"            prints a file's bytes in hexadecimal
//   fields NAME...          prints these fields of the session state
void AddDialogCommands(ScenarioRunner& runner);

} // namespace sw::scripted
