#pragma once

#include "imaging/EncodedFile.h"

#include <string>

namespace sw {

class Picture;

// The picture as a 24-bit Windows BMP file in memory, to be written by
// WriteEncodedFile. A picture that cannot be saved throws FileWriteError
// naming `fileName`. Safe to call on several threads at once.
EncodedFile EncodeBmp(const Picture& picture, const std::string& fileName);

// Writes the picture as a 24-bit Windows BMP file, replacing an existing file
// only once the new one is complete. Failures throw FileWriteError.
void SavePicture(const Picture& picture, const std::string& fileName);

} // namespace sw
