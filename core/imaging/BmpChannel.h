#pragma once

#include <cstdint>

namespace sw {

// One colour channel of a masked BMP pixel: where its bits lie and how far
// its values reach. A channel of any width, from 1 to 32 bits, is scaled to
// the full range 0-255, so that its largest value is white and not a grey
// a few steps below it.
class BmpChannel {
public:
    explicit BmpChannel(std::uint32_t mask);
    std::uint8_t Value(std::uint32_t pixel) const;

private:
    std::uint32_t mask_ = 0;
    int shift_ = 0;
    std::uint64_t largest_ = 0;
};

} // namespace sw
