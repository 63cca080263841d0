#pragma once

#include "common/Types.h"

#include <optional>

namespace sw {

// The row stride of a 24-bit surface (width x 3 rounded up to a multiple of
// 4) and its buffer size, in 32-bit signed arithmetic: nothing when the
// result does not fit, so that an oversized request is refused, never wrapped.
std::optional<i32> CheckedStride(i32 width);
std::optional<i32> CheckedBufferSize(i32 width, i32 height);

} // namespace sw
