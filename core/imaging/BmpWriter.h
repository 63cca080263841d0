#pragma once

#include <string>

namespace sw {

class Picture;

// Writes the picture as a 24-bit Windows BMP file, replacing an existing file
// only once the new one is complete. Failures throw FileWriteError.
void SavePicture(const Picture& picture, const std::string& fileName);

} // namespace sw
