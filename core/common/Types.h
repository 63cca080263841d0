#pragma once

#include <cstdint>

namespace sw {

using i16 = std::int16_t;
using i32 = std::int32_t;

// Colours are 0x00BBGGRR.
using Color = std::uint32_t;

// Twips per pixel wherever a size is turned into pixels with a constant.
inline constexpr float kTwipsPerPixel = 15.0f;

} // namespace sw
