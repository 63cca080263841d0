#pragma once

#include "common/Types.h"
#include "imaging/EncodedFile.h"

#include <string>

namespace sw {

class Picture;

// WebP holds at most this many pixels a side.
inline constexpr int kMaxWebpSide = 16383;

// The bytes of the picture as a lossy WebP file of that quality (1 to 100),
// to be written by WriteEncodedFile; a picture WebP cannot hold or an encoder
// failure throws FileWriteError naming `fileName`. Safe on several threads.
EncodedFile EncodeWebp(const Picture& picture, const std::string& fileName, i32 quality);

// Encodes and writes the picture as a WebP file, replacing an existing file
// only once the new one is complete. Failures throw FileWriteError.
void WriteWebpFile(const Picture& picture, const std::string& fileName, i32 quality);

// Reads a WebP file into a picture; throws std::runtime_error naming the
// cause when it cannot.
Picture ReadWebpFile(const std::string& fileName);

} // namespace sw
