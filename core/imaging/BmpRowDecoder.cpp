#include "imaging/BmpRowDecoder.h"

#include <cstring>

namespace sw {

BmpRowDecoder::BmpRowDecoder(const BmpHeader& header)
    : header_(header), columns_(static_cast<int>(header.Columns())), red_(header.masks[0]),
      green_(header.masks[1]), blue_(header.masks[2]) {}

void BmpRowDecoder::Decode(const std::uint8_t* stored, std::uint8_t* bgr) const {
    switch (header_.storage) {
    case BmpStorage::Indexed:
        decodeIndexed(stored, bgr);
        break;
    case BmpStorage::Masked:
        decodeMasked(stored, bgr);
        break;
    case BmpStorage::Bgr:
    case BmpStorage::RunLength:
        std::memcpy(bgr, stored, 3 * static_cast<std::size_t>(columns_));
        break;
    }
}

// Indices of 1, 4 or 8 bits, the leftmost pixel in the highest bits of a byte.
void BmpRowDecoder::decodeIndexed(const std::uint8_t* stored, std::uint8_t* bgr) const {
    const int bits = header_.bitCount;
    const int perByte = 8 / bits;
    const unsigned mask = (1u << bits) - 1;
    for (int x = 0; x < columns_; ++x) {
        const int shift = 8 - bits * (x % perByte + 1);
        const unsigned byte = stored[x / perByte];
        const unsigned index = byte >> shift & mask;
        PutBgr(bgr + 3 * x, PaletteColor(header_, index));
    }
}

void BmpRowDecoder::decodeMasked(const std::uint8_t* stored, std::uint8_t* bgr) const {
    const int bytes = header_.bitCount / 8;
    for (int x = 0; x < columns_; ++x) {
        const std::uint8_t* p = stored + bytes * x;
        std::uint32_t pixel = 0;
        for (int i = bytes - 1; i >= 0; --i) {
            pixel = pixel << 8 | p[i];
        }
        bgr[3 * x] = blue_.Value(pixel);
        bgr[3 * x + 1] = green_.Value(pixel);
        bgr[3 * x + 2] = red_.Value(pixel);
    }
}

} // namespace sw
