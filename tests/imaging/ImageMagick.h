#pragma once

#include "imaging/Picture.h"

#include <cstdint>
#include <string>
#include <vector>

namespace sw::test {

// Pixels as an independent decoder sees them: rows top-down, three bytes a
// pixel in the order red, green, blue.
struct RgbImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;
    const std::uint8_t* At(int x, int y) const {
        return rgb.data() + 3 * (static_cast<std::size_t>(y) * width + x);
    }
};

// The largest difference, in steps of one channel, between our picture and
// the same pixels decoded elsewhere; the sizes must agree.
int LargestDifference(const Picture& ours, const RgbImage& theirs);

// Runs a shell command; throws when it cannot run or does not end with 0.
std::string RunCommand(const std::string& command);

// Decodes a picture file with ImageMagick (`/usr/bin/convert file ppm:-`).
// Throws when ImageMagick is missing, so that a test without it fails.
RgbImage DecodeWithImageMagick(const std::string& path);

// Runs `/usr/bin/convert ARGS`, throwing when ImageMagick is missing or fails.
void Convert(const std::string& arguments);

} // namespace sw::test
