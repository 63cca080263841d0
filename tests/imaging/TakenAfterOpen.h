#pragma once

#include "tests/imaging/FileBytes.h"

#include <optional>
#include <string>

namespace sw::test {

// Another program at work on a picture while it is being opened: right after
// this process next opens `path` (by open, or by a C++ file stream), the file
// is removed, or replaced by a new file holding `replacement` when one is
// given. Stands in front of the C library's calls in the test program that
// links it.
void TakeAfterOpen(const std::string& path, std::optional<Bytes> replacement);

} // namespace sw::test
