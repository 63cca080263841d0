#include "imaging/PixelBuffer.h"

#include <sys/mman.h>

namespace sw {
namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20;

// The whole huge pages inside the buffer; the advice is a hint, and a system
// without huge pages simply ignores it.
void adviseHugePages(std::uint8_t* start, std::size_t size) {
    const auto first = (reinterpret_cast<std::uintptr_t>(start) + kHugePage - 1) & ~(kHugePage - 1);
    const auto end = (reinterpret_cast<std::uintptr_t>(start) + size) & ~(kHugePage - 1);
    if (end > first) {
        ::madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
    }
}

} // namespace

std::vector<std::uint8_t> PixelBuffer(std::size_t size) {
    std::vector<std::uint8_t> buffer;
    buffer.reserve(size);
    if (size >= 2 * kHugePage) {
        adviseHugePages(buffer.data(), size);
    }
    buffer.resize(size);
    return buffer;
}

} // namespace sw
