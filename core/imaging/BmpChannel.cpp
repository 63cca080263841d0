#include "imaging/BmpChannel.h"

namespace sw {

BmpChannel::BmpChannel(std::uint32_t mask) : mask_(mask) {
    if (mask == 0) {
        return;
    }
    while ((mask >> shift_ & 1) == 0) {
        ++shift_;
    }
    largest_ = mask >> shift_;
}

std::uint8_t BmpChannel::Value(std::uint32_t pixel) const {
    if (largest_ == 0) {
        return 0;
    }
    const std::uint64_t value = (pixel & mask_) >> shift_;
    // Rounded to the nearest step; a mask with gaps reaches its largest value only when all its
    // bits are set.
    return static_cast<std::uint8_t>((value * 255 + largest_ / 2) / largest_);
}

} // namespace sw
