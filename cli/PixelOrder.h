#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace sw {

class Picture;

// The byte order of a pixel in a library's buffer.
enum class ChannelOrder { Bgr, Rgb };

// One row of the picture (counted from the top) as packed three-byte pixels.
void CopyRowOut(const Picture& picture, int y, ChannelOrder order, std::uint8_t* to);

// A picture from packed rows stored top-down, `stride` bytes apart.
Picture PictureFromTopDown(int width, int height, const std::uint8_t* rows, std::size_t stride,
                           ChannelOrder order);

} // namespace sw
