#pragma once

#include <array>
#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <vector>

namespace sw {

// How a BMP file stores its pixels.
enum class BmpStorage {
    Indexed,   // 1, 4 or 8 bits of palette index a pixel
    RunLength, // palette indices in runs (4 or 8 bits)
    Masked,    // 16 or 32 bits a pixel, the channels where their masks say
    Bgr,       // 24 bits a pixel: blue, green, red
};

// Everything in a BMP file before its pixels, read from any of the header
// kinds in use: the 12-byte OS/2 1.x header, the OS/2 2.x header (16 to 64
// bytes) and the Windows headers of 40, 52, 56, 108 and 124 bytes.
struct BmpHeader {
    std::uint32_t pixelOffset = 0;
    std::uint32_t infoSize = 0;
    // As stored: a negative height means the rows run from the top down.
    std::int32_t width = 0;
    std::int32_t height = 0;
    int bitCount = 0;
    BmpStorage storage = BmpStorage::Bgr;
    // Where red, green and blue lie in a masked pixel.
    std::array<std::uint32_t, 3> masks{};
    // 0x00RRGGBB of every palette entry; empty for pixels that carry their colour.
    std::vector<std::uint32_t> palette;

    // The size of the picture, whatever the order of its rows.
    std::int64_t Columns() const;
    std::int64_t Rows() const;
    bool TopDown() const { return height < 0; }
    // Bytes of one stored row, padded to 4 bytes; 64 bits, so that no header can overflow it.
    std::uint64_t RowBytes() const;
    // Whether a file of this many bytes holds every row the header announces.
    // Run-length data says nothing about its length and always passes.
    bool HoldsEveryRow(std::uint64_t fileSize) const;
};

// A header, or why the bytes are no BMP this program reads.
struct BmpHeaderRead {
    std::optional<BmpHeader> header;
    std::string problem;
};

// Reads `count` bytes of the file; false when it ends before them.
bool ReadExactly(std::istream& file, std::uint8_t* into, std::size_t count);

// Whether the bytes begin the way every BMP file begins.
bool StartsLikeBmp(std::istream& file);

// Reads the file and info headers, the bit field masks and the palette, and
// leaves the stream anywhere. Every count in the header is checked before
// it is used, so a hostile header costs no more than its own bytes.
BmpHeaderRead ReadBmpHeader(std::istream& file);

} // namespace sw
