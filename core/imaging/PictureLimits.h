#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace sw {

// Section lines are 16-bit pixel positions.
inline constexpr int kMaxPictureSide = 32767;
// The decoded pixels at 4 bytes each, which is what a decoder may take on the way.
inline constexpr std::int64_t kMaxPicturePixels = std::int64_t{128} * 1024 * 1024;

// Why a picture of this size, as its header gives it, is not opened; checked
// before any pixel memory is taken. 64 bits, so that any header's numbers fit.
std::optional<std::string> PictureSizeProblem(std::int64_t width, std::int64_t height);

} // namespace sw
