#include "imaging/Picture.h"

#include <stdexcept>

namespace sw {

std::size_t Picture::Stride(int width) {
    return (static_cast<std::size_t>(width) * 3 + 3) & ~static_cast<std::size_t>(3);
}

Picture Picture::FromBottomUpBgr(int width, int height, std::vector<std::uint8_t> bytes) {
    if (width <= 0 || height <= 0 ||
        bytes.size() < Stride(width) * static_cast<std::size_t>(height)) {
        throw std::invalid_argument("picture buffer does not match its size");
    }
    auto pixels = std::make_shared<Pixels>();
    pixels->width = width;
    pixels->height = height;
    pixels->stride = Stride(width);
    pixels->bytes = std::move(bytes);
    Picture picture;
    picture.pixels_ = std::move(pixels);
    picture.width_ = width;
    picture.height_ = height;
    return picture;
}

Picture Picture::Filled(int width, int height, std::uint32_t color) {
    const std::size_t stride = Stride(width);
    std::vector<std::uint8_t> bytes(stride * static_cast<std::size_t>(height), 0);
    for (int y = 0; y < height; ++y) {
        std::uint8_t* row = bytes.data() + stride * static_cast<std::size_t>(y);
        for (int x = 0; x < width; ++x) {
            row[3 * x] = static_cast<std::uint8_t>(color >> 16);
            row[3 * x + 1] = static_cast<std::uint8_t>(color >> 8);
            row[3 * x + 2] = static_cast<std::uint8_t>(color);
        }
    }
    return FromBottomUpBgr(width, height, std::move(bytes));
}

const std::uint8_t* Picture::Row(int y) const {
    const int bufferRow = pixels_->height - 1 - (top_ + y);
    return pixels_->bytes.data() + pixels_->stride * static_cast<std::size_t>(bufferRow) +
           3 * static_cast<std::size_t>(left_);
}

std::uint32_t Picture::PixelAt(int x, int y) const {
    const std::uint8_t* p = Row(y) + 3 * x;
    return static_cast<std::uint32_t>(p[0]) << 16 | static_cast<std::uint32_t>(p[1]) << 8 | p[2];
}

Picture Picture::Clip(int x, int y, int width, int height) const {
    if (x < 0 || y < 0 || width <= 0 || height <= 0 || x + width > width_ || y + height > height_) {
        throw std::out_of_range("clip rectangle outside the picture");
    }
    Picture clip = *this;
    clip.left_ = left_ + x;
    clip.top_ = top_ + y;
    clip.width_ = width;
    clip.height_ = height;
    return clip;
}

} // namespace sw
