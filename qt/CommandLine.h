#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace sw::qt {

// What the program's command line asks: either to end at once with an exit
// code (after --help, --version or a mistake, all printed already), or to
// start, with a picture to open or none.
struct CommandLine {
    std::optional<int> exitCode;
    // An absolute path, as the Open dialog would give it; empty for none.
    QString picture;
};

// Exit code of a command line that cannot be understood.
inline constexpr int kUsageExitCode = 2;

// Reads the arguments (the program's name first). Needs a QCoreApplication.
CommandLine ReadCommandLine(const QStringList& arguments);

} // namespace sw::qt
