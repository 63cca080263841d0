#pragma once

#include "common/Types.h"

#include <cstddef>
#include <cstdint>

namespace sw {

// Rows of 24-bit pixels addressed from the picture's top, whatever their order
// in memory: a bottom-up buffer has a negative step.
template <typename Byte> struct PixelRowsOf {
    Byte* top = nullptr;
    std::ptrdiff_t step = 0;
    i32 width = 0;
    i32 height = 0;

    Byte* Row(i32 y) const { return top + step * y; }
};

using PixelRows = PixelRowsOf<std::uint8_t>;
using ConstPixelRows = PixelRowsOf<const std::uint8_t>;

// Copies width x height pixels from (fromLeft, fromTop) of one picture to
// (toLeft, toTop) of another, skipping whatever lies outside either of them.
// Only pixel bytes are written: the pad at a row's end is left alone.
void CopyPixelRect(const ConstPixelRows& from, i32 fromLeft, i32 fromTop, const PixelRows& to,
                   i32 toLeft, i32 toTop, i32 width, i32 height);

} // namespace sw
