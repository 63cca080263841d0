#pragma once

#include "imaging/BmpHeader.h"
#include "imaging/Picture.h"

#include <istream>
#include <optional>
#include <string>

namespace sw {

// A decoded BMP, or why its pixels could not be read.
struct BmpRead {
    std::optional<Picture> picture;
    std::string problem;
};

// Reads the pixels that a header announces into a picture, for every BMP
// kind the header reader takes. The caller has held the picture's size
// against its limits: this allocates the whole picture. A plain 24-bit
// bottom-up file, the most common kind, is read in one go with no conversion.
BmpRead ReadBmpPixels(std::istream& file, const BmpHeader& header);

} // namespace sw
