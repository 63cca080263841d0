#pragma once

#include <string>
#include <vector>

namespace sw::test {

// The calls of fsync, rename and umask that the program makes, seen by
// functions of those names in this test program that stand in front of the
// C library's: "fsync file", "fsync folder", "rename", "umask".
std::vector<std::string>& SyscallLog();

} // namespace sw::test
