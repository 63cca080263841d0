#pragma once

#include "CutOptions.h"

#include <optional>
#include <string>

namespace sw {

// The name the program's messages begin with.
inline constexpr const char* kProgram = "slicewright-cut";

// What the command line comes to: options to run with, or an answer that
// ends the program at once (help and version on standard output with exit
// 0, a usage error on standard error with exit 2).
struct CommandLine {
    std::optional<CutOptions> options;
    int exitCode = 0;
    std::string output;
    std::string error;
};

CommandLine ParseCommandLine(int argc, const char* const* argv);

// The lowest quality a lossy piece may be verified at, in dB of PSNR.
double PsnrFloor(i32 quality);

} // namespace sw
