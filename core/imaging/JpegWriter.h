#pragma once

#include "common/Types.h"
#include "imaging/EncodedFile.h"

#include <string>

namespace sw {

class cDIBSection;

// Encoder statuses of our own, beside the encoder's: the writer refuses
// these before the encoder runs.
inline constexpr i32 kJpegStatusNoBuffer = -100;
inline constexpr i32 kJpegStatusBadQuality = -101;

// The surface encoded as a JPG file in memory (4:2:0 chroma, `quality` 1 to
// 100), to be written by WriteEncodedFile. Safe to call on several threads at
// once; an encoder failure throws JpegWriteError.
EncodedFile EncodeJPG(const cDIBSection& surface, i32 quality);

// Writes the surface as a JPG file (4:2:0 chroma, `quality` 1 to 100). The
// pixels are read in place. An existing file is replaced only once the new
// one is complete, and keeps its permissions and its access and modification
// times. Answers true; an encoder failure throws JpegWriteError, a file that
// cannot be written throws FileWriteError, and in both cases an earlier file
// at that path is left as it was.
bool WriteJPGFile(const cDIBSection& surface, const std::string& fileName, i32 quality);

} // namespace sw
