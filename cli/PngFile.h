#pragma once

#include <string>

namespace sw {

class Picture;

// Writes the picture as a 24-bit PNG file, replacing an existing file only
// once the new one is complete. Failures throw FileWriteError.
void WritePngFile(const Picture& picture, const std::string& fileName);

// Reads a PNG file into a picture (alpha is dropped); throws
// std::runtime_error naming the cause when it cannot.
Picture ReadPngFile(const std::string& fileName);

} // namespace sw
