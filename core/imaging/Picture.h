#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace sw {

// A decoded picture, what loading a file and cutting a clip give. Pixels are
// 24-bit blue, green, red, rows padded to 4 bytes and stored bottom-up: the
// layout of the surface, so that copying a picture into a surface is a plain
// row copy. The pixels are shared and never change; a clip is a view on them.
class Picture {
public:
    Picture() = default;

    // Takes a buffer in the layout above; `bytes` must hold Stride(width) * height.
    static Picture FromBottomUpBgr(int width, int height, std::vector<std::uint8_t> bytes);
    // A picture of one colour (0x00BBGGRR), for tests and placeholders.
    static Picture Filled(int width, int height, std::uint32_t color);

    static std::size_t Stride(int width);

    int Width() const { return width_; }
    int Height() const { return height_; }
    bool IsEmpty() const { return width_ <= 0 || height_ <= 0; }

    // First byte of row y (counted from the top) at the view's left edge.
    const std::uint8_t* Row(int y) const;
    // Bytes from one row to the row above it in the shared buffer.
    std::size_t RowPitch() const { return pixels_ ? pixels_->stride : 0; }
    // 0x00BBGGRR of one pixel, for tests.
    std::uint32_t PixelAt(int x, int y) const;

    // The rectangle as a view on the same pixels; a rectangle with no area or
    // reaching outside the picture throws std::out_of_range.
    Picture Clip(int x, int y, int width, int height) const;

private:
    struct Pixels {
        int width = 0;
        int height = 0;
        std::size_t stride = 0;
        std::vector<std::uint8_t> bytes;
    };
    std::shared_ptr<const Pixels> pixels_;
    int left_ = 0;
    int top_ = 0;
    int width_ = 0;
    int height_ = 0;
};

} // namespace sw
