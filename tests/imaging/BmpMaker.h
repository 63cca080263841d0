#pragma once

#include "tests/imaging/FileBytes.h"
#include "tests/imaging/ImageMagick.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace sw::test {

// The header kinds of BMP files, by the size of their info header.
enum class BmpInfo { Os2Core = 12, Os2Second = 64, Windows = 40, WindowsV4 = 108, WindowsV5 = 124 };

// One kind of BMP file: the writers ImageMagick offers do not cover them all.
struct BmpKind {
    std::string name;
    BmpInfo info = BmpInfo::Windows;
    int bits = 24;
    // 0 plain, 1 RLE8, 2 RLE4, 3 bit fields.
    int compression = 0;
    // Red, green, blue and alpha, for 16- and 32-bit pixels with bit fields.
    std::array<std::uint32_t, 4> masks{};
    bool topDown = false;
};

// A small picture of that kind (13 x 9, or 8 x 6 for run-length files) with
// white, black, gradients in every channel and, in run-length files, deltas,
// early line ends, odd absolute runs and an early end of the bitmap.
Bytes MakeBmp(const BmpKind& kind);

// The pixels MakeBmp means for a kind without run-length data: its sample
// colours rounded to the channels' widths and scaled back to the full range.
RgbImage IntendedPicture(const BmpKind& kind);

// A BMP file header and 40-byte info header with the fields given; the
// palette and pixels (or nothing) follow. For hostile headers.
Bytes BmpHeaders(std::int32_t width, std::int32_t height, int bits, int compression,
                 std::uint32_t paletteBytes, std::uint32_t imageBytes);

void PutLittleEndian(Bytes& out, std::uint32_t value, int count);

} // namespace sw::test
