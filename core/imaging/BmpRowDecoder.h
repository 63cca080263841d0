#pragma once

#include "imaging/BmpChannel.h"
#include "imaging/BmpHeader.h"

#include <cstdint>

namespace sw {

// Turns one stored row of an uncompressed BMP into blue, green and red bytes.
class BmpRowDecoder {
public:
    explicit BmpRowDecoder(const BmpHeader& header);
    void Decode(const std::uint8_t* stored, std::uint8_t* bgr) const;

private:
    void decodeIndexed(const std::uint8_t* stored, std::uint8_t* bgr) const;
    void decodeMasked(const std::uint8_t* stored, std::uint8_t* bgr) const;

    const BmpHeader& header_;
    int columns_;
    BmpChannel red_;
    BmpChannel green_;
    BmpChannel blue_;
};

// Writes 0x00RRGGBB as blue, green, red.
inline void PutBgr(std::uint8_t* bgr, std::uint32_t rgb) {
    bgr[0] = static_cast<std::uint8_t>(rgb);
    bgr[1] = static_cast<std::uint8_t>(rgb >> 8);
    bgr[2] = static_cast<std::uint8_t>(rgb >> 16);
}

// The colour of a palette index; an index past the palette's end, which
// only a damaged file holds, is black.
inline std::uint32_t PaletteColor(const BmpHeader& header, unsigned index) {
    return index < header.palette.size() ? header.palette[index] : 0;
}

} // namespace sw
