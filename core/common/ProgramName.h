#pragma once

#include <string>

namespace sw {

// The running program's file name without folder and extension.
std::string ProgramName();

} // namespace sw
