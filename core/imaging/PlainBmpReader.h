#pragma once

#include "imaging/Picture.h"

#include <optional>
#include <string>

namespace sw {

// The size of a BMP whose pixels are stored exactly as a Picture keeps them:
// 24 bits a pixel, uncompressed, bottom-up, rows padded to 4 bytes.
struct PlainBmp {
    int width = 0;
    int height = 0;
    long long pixelOffset = 0;
};

// The layout of the file's pixels when it is such a BMP; nothing for any
// other file, which then goes to the general decoder.
std::optional<PlainBmp> ProbePlainBmp(const std::string& path);

// Reads the pixels of a probed file straight into a picture: one read, no
// conversion. Nothing when the file is shorter than its header says.
std::optional<Picture> ReadPlainBmp(const std::string& path, const PlainBmp& layout);

} // namespace sw
