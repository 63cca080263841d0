#pragma once

#include "imaging/EncodedFile.h"

#include <string>

namespace sw {

class Picture;

// The bytes of the picture as a 24-bit PNG file, to be written by
// WriteEncodedFile; an encoder failure throws FileWriteError naming
// `fileName`. Safe to call on several threads at once.
EncodedFile EncodePng(const Picture& picture, const std::string& fileName);

// Encodes and writes the picture as a PNG file, replacing an existing file
// only once the new one is complete. Failures throw FileWriteError.
void WritePngFile(const Picture& picture, const std::string& fileName);

// Reads a PNG file into a picture (alpha is dropped); throws
// std::runtime_error naming the cause when it cannot.
Picture ReadPngFile(const std::string& fileName);

} // namespace sw
