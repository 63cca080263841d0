#include "PixelOrder.h"

#include "imaging/Picture.h"

#include <cstring>

namespace sw {
namespace {

// Copies `width` pixels, swapping red and blue when the orders differ.
void copyPixels(const std::uint8_t* from, std::uint8_t* to, int width, bool swap) {
    if (!swap) {
        std::memcpy(to, from, static_cast<std::size_t>(width) * 3);
        return;
    }
    for (int x = 0; x < width; ++x) {
        to[3 * x] = from[3 * x + 2];
        to[3 * x + 1] = from[3 * x + 1];
        to[3 * x + 2] = from[3 * x];
    }
}

} // namespace

void CopyRowOut(const Picture& picture, int y, ChannelOrder order, std::uint8_t* to) {
    copyPixels(picture.Row(y), to, picture.Width(), order == ChannelOrder::Rgb);
}

Picture PictureFromTopDown(int width, int height, const std::uint8_t* rows, std::size_t stride,
                           ChannelOrder order) {
    const std::size_t pictureStride = Picture::Stride(width);
    std::vector<std::uint8_t> bytes(pictureStride * static_cast<std::size_t>(height), 0);
    for (int y = 0; y < height; ++y) {
        // The picture keeps its rows bottom-up.
        std::uint8_t* to = bytes.data() + pictureStride * static_cast<std::size_t>(height - 1 - y);
        copyPixels(rows + stride * static_cast<std::size_t>(y), to, width,
                   order == ChannelOrder::Rgb);
    }
    return Picture::FromBottomUpBgr(width, height, std::move(bytes));
}

} // namespace sw
