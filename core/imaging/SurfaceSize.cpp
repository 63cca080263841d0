#include "imaging/SurfaceSize.h"

namespace sw {

std::optional<i32> CheckedStride(i32 width) {
    i32 tripled = 0;
    i32 padded = 0;
    if (width < 0 || __builtin_mul_overflow(width, 3, &tripled) ||
        __builtin_add_overflow(tripled, 3, &padded)) {
        return std::nullopt;
    }
    return padded & ~3;
}

std::optional<i32> CheckedBufferSize(i32 width, i32 height) {
    const std::optional<i32> stride = CheckedStride(width);
    i32 size = 0;
    if (!stride || height < 0 || __builtin_mul_overflow(*stride, height, &size)) {
        return std::nullopt;
    }
    return size;
}

} // namespace sw
