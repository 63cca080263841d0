#pragma once

#include "imaging/BmpReader.h"

#include <cstdint>
#include <istream>
#include <string>

namespace sw {

// Whether a file's first bytes are those of a BMP, whatever its name ends in.
bool IsBmpFile(const std::string& path);

// Reads a whole BMP of `fileSize` bytes: its header, then the checks that
// keep a hostile header from costing memory (the size limits and whether
// the file holds every row it announces), then its pixels.
BmpRead ReadBmp(std::istream& file, std::uint64_t fileSize);

// The same from a file.
BmpRead ReadBmpFile(const std::string& path);

} // namespace sw
