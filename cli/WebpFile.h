#pragma once

#include "common/Types.h"

#include <string>

namespace sw {

class Picture;

// WebP holds at most this many pixels a side.
inline constexpr int kMaxWebpSide = 16383;

// Writes the picture as a lossy WebP file of that quality (1 to 100),
// replacing an existing file only once the new one is complete. Failures
// throw FileWriteError.
void WriteWebpFile(const Picture& picture, const std::string& fileName, i32 quality);

// Reads a WebP file into a picture; throws std::runtime_error naming the
// cause when it cannot.
Picture ReadWebpFile(const std::string& fileName);

} // namespace sw
