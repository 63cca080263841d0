#include "imaging/PixelRows.h"

#include <algorithm>
#include <cstring>

namespace sw {
namespace {

// The part [start, end) of a span of `length` pixels that lies inside both
// pictures, in source coordinates; 64-bit so that no offset can wrap.
struct Span {
    std::int64_t start;
    std::int64_t end;
};

Span overlap(std::int64_t fromStart, std::int64_t fromSize, std::int64_t toStart,
             std::int64_t toSize, std::int64_t length) {
    const std::int64_t shift = toStart - fromStart;
    const std::int64_t start = std::max({fromStart, std::int64_t{0}, -shift});
    const std::int64_t end = std::min({fromStart + length, fromSize, toSize - shift});
    return {start, std::max(start, end)};
}

} // namespace

void CopyPixelRect(const ConstPixelRows& from, i32 fromLeft, i32 fromTop, const PixelRows& to,
                   i32 toLeft, i32 toTop, i32 width, i32 height) {
    if (from.top == nullptr || to.top == nullptr || width <= 0 || height <= 0) {
        return;
    }
    const Span xs = overlap(fromLeft, from.width, toLeft, to.width, width);
    const Span ys = overlap(fromTop, from.height, toTop, to.height, height);
    const std::int64_t dx = std::int64_t{toLeft} - fromLeft;
    const std::int64_t dy = std::int64_t{toTop} - fromTop;
    const auto bytes = static_cast<std::size_t>(3 * (xs.end - xs.start));
    if (bytes == 0) {
        return;
    }
    // Downward moves within one buffer go from the last row up, so that no
    // row is overwritten before it has been read.
    const bool lastFirst = dy > 0;
    for (std::int64_t i = 0; i < ys.end - ys.start; ++i) {
        const std::int64_t y = lastFirst ? ys.end - 1 - i : ys.start + i;
        const std::uint8_t* source = from.Row(static_cast<i32>(y)) + 3 * xs.start;
        std::uint8_t* target = to.Row(static_cast<i32>(y + dy)) + 3 * (xs.start + dx);
        std::memmove(target, source, bytes);
    }
}

} // namespace sw
