#pragma once

#include "common/Types.h"

#include <cstdint>
#include <stdexcept>

namespace sw {

// A bounds-checked two-dimensional view on a surface's buffer, laid over it
// without a copy: the byte within a row first, then the row in memory order
// (row 0 is the picture's bottom row). An index outside the view throws.
template <typename Byte> class PixelViewOf {
public:
    PixelViewOf(Byte* bits, i32 stride, i32 rows) : bits_(bits), stride_(stride), rows_(rows) {
        if (bits == nullptr) {
            throw std::logic_error("pixel view on a surface without buffer");
        }
    }

    Byte& operator()(i32 byte, i32 row) const {
        if (byte < 0 || byte >= stride_ || row < 0 || row >= rows_) {
            throw std::out_of_range("pixel view index outside the surface");
        }
        return bits_[static_cast<std::ptrdiff_t>(row) * stride_ + byte];
    }

    i32 Rows() const { return rows_; }

private:
    Byte* bits_;
    i32 stride_;
    i32 rows_;
};

using PixelView = PixelViewOf<std::uint8_t>;
using ConstPixelView = PixelViewOf<const std::uint8_t>;

} // namespace sw
