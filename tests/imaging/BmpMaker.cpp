#include "tests/imaging/BmpMaker.h"

#include <cmath>

namespace sw::test {
namespace {

constexpr int kWidth = 13;
constexpr int kHeight = 9;
constexpr int kRunWidth = 8;
constexpr int kRunHeight = 6;

// 0x00RRGGBB of the sample picture; the top left pixel is white, the next black.
std::uint32_t sampleColor(int x, int y) {
    if (y == 0 && x < 2) {
        return x == 0 ? 0xFFFFFF : 0x000000;
    }
    const auto r = static_cast<std::uint32_t>(x * 255 / (kWidth - 1));
    const auto g = static_cast<std::uint32_t>(y * 255 / (kHeight - 1));
    const auto b = static_cast<std::uint32_t>((x * 37 + y * 91) % 256);
    return r << 16 | g << 8 | b;
}

// Palette entry i of n: white first, then black, then spread colours.
std::uint32_t paletteColor(unsigned i, unsigned n) {
    if (i < 2) {
        return i == 0 ? 0xFFFFFF : 0x000000;
    }
    const unsigned step = 255 * i / (n - 1);
    return step << 16 | ((i * 53) % 256) << 8 | (255 - step);
}

unsigned sampleIndex(int x, int y, unsigned n) {
    return static_cast<unsigned>(x * 3 + y * 5) % n;
}

// The lowest bit of a mask that is not 0.
int maskShift(std::uint32_t mask) {
    int shift = 0;
    while ((mask >> shift & 1) == 0) {
        ++shift;
    }
    return shift;
}

// An 8-bit value in a channel of that mask, rounded to its nearest step.
std::uint32_t inMask(std::uint32_t value, std::uint32_t mask) {
    if (mask == 0) {
        return 0;
    }
    const int shift = maskShift(mask);
    const double largest = static_cast<double>(mask >> shift);
    return static_cast<std::uint32_t>(std::lround(value * largest / 255.0)) << shift;
}

// What a decoder makes of a channel value stored in that mask.
std::uint8_t fromMask(std::uint32_t stored, std::uint32_t mask) {
    if (mask == 0) {
        return 0;
    }
    const int shift = maskShift(mask);
    return static_cast<std::uint8_t>(std::lround((stored >> shift) * 255.0 / (mask >> shift)));
}

bool isIndexed(const BmpKind& kind) {
    return kind.bits <= 8;
}

unsigned paletteSize(const BmpKind& kind) {
    return isIndexed(kind) ? 1u << kind.bits : 0u;
}

std::array<std::uint32_t, 4> effectiveMasks(const BmpKind& kind) {
    if (kind.compression == 3) {
        return kind.masks;
    }
    return kind.bits == 16 ? std::array<std::uint32_t, 4>{0x7C00, 0x03E0, 0x001F, 0}
                           : std::array<std::uint32_t, 4>{0xFF0000, 0xFF00, 0xFF, 0};
}

void putPixel(Bytes& row, const BmpKind& kind, int x, int y) {
    if (isIndexed(kind)) {
        const unsigned index = sampleIndex(x, y, paletteSize(kind));
        const int perByte = 8 / kind.bits;
        row[static_cast<std::size_t>(x / perByte)] |=
            static_cast<std::uint8_t>(index << (8 - kind.bits * (x % perByte + 1)));
        return;
    }
    const std::uint32_t rgb = sampleColor(x, y);
    if (kind.bits == 24) {
        for (int c = 0; c < 3; ++c) {
            row[static_cast<std::size_t>(3 * x + c)] = static_cast<std::uint8_t>(rgb >> (8 * c));
        }
        return;
    }
    const std::array<std::uint32_t, 4> m = effectiveMasks(kind);
    const std::uint32_t pixel = inMask(rgb >> 16 & 0xFF, m[0]) | inMask(rgb >> 8 & 0xFF, m[1]) |
                                inMask(rgb & 0xFF, m[2]) | m[3];
    for (int i = 0; i < kind.bits / 8; ++i) {
        row[static_cast<std::size_t>(kind.bits / 8 * x + i)] =
            static_cast<std::uint8_t>(pixel >> (8 * i));
    }
}

Bytes plainPixels(const BmpKind& kind) {
    const std::size_t stride = (static_cast<std::size_t>(kWidth) * kind.bits + 31) / 32 * 4;
    Bytes pixels;
    for (int i = 0; i < kHeight; ++i) {
        const int y = kind.topDown ? i : kHeight - 1 - i;
        Bytes row(stride, 0);
        for (int x = 0; x < kWidth; ++x) {
            putPixel(row, kind, x, y);
        }
        pixels.insert(pixels.end(), row.begin(), row.end());
    }
    return pixels;
}

// Two indices in one byte for 4-bit data, one index for 8-bit data.
std::uint8_t pair(const BmpKind& kind, unsigned a, unsigned b) {
    return static_cast<std::uint8_t>(kind.bits == 4 ? (a << 4 | b) : a);
}

// Run-length data of 8 x 6 pixels, bottom row first, using every escape.
Bytes runLengthPixels(const BmpKind& kind) {
    const bool nibbles = kind.bits == 4;
    Bytes d = {3, pair(kind, 2, 3)};                               // a run of three
    d.insert(d.end(), {0, 4, pair(kind, 4, 5), pair(kind, 6, 7)}); // an absolute run of four
    if (!nibbles) {
        d.insert(d.end(), {8, 9});
    }
    d.insert(d.end(), {1, pair(kind, 1, 1), 0, 0});       // one more, end of line
    d.insert(d.end(), {2, pair(kind, 5, 5), 0, 2, 3, 1}); // two, then a delta 3 right, 1 up
    d.insert(d.end(), {3, pair(kind, 9 % 16, 8), 0, 0});  // three, end of line
    d.insert(d.end(), {8, pair(kind, 7, 7), 0, 0});       // a whole row of one index
    d.insert(d.end(), {0, 5});                            // an odd absolute run, padded
    const Bytes odd = nibbles ? Bytes{pair(kind, 1, 2), pair(kind, 3, 4), pair(kind, 5, 0), 0}
                              : Bytes{1, 2, 3, 4, 5, 0};
    d.insert(d.end(), odd.begin(), odd.end());
    d.insert(d.end(), {0, 0, 8, pair(kind, 0, 6), 0, 1}); // early end of line, end of bitmap
    d.resize((d.size() + 3) / 4 * 4, 0);                  // writers pad to 4 bytes
    return d;
}

Bytes palette(const BmpKind& kind) {
    Bytes out;
    const unsigned n = paletteSize(kind);
    for (unsigned i = 0; i < n; ++i) {
        const std::uint32_t rgb = paletteColor(i, n);
        out.insert(out.end(), {static_cast<std::uint8_t>(rgb), static_cast<std::uint8_t>(rgb >> 8),
                               static_cast<std::uint8_t>(rgb >> 16)});
        if (kind.info != BmpInfo::Os2Core) {
            out.push_back(0);
        }
    }
    return out;
}

Bytes infoHeader(const BmpKind& kind, int width, int height, std::uint32_t imageBytes) {
    Bytes out;
    const auto size = static_cast<std::uint32_t>(kind.info);
    PutLittleEndian(out, size, 4);
    if (kind.info == BmpInfo::Os2Core) {
        PutLittleEndian(out, static_cast<std::uint32_t>(width), 2);
        PutLittleEndian(out, static_cast<std::uint32_t>(height), 2);
        PutLittleEndian(out, 1, 2);
        PutLittleEndian(out, static_cast<std::uint32_t>(kind.bits), 2);
        return out;
    }
    PutLittleEndian(out, static_cast<std::uint32_t>(width), 4);
    PutLittleEndian(out, static_cast<std::uint32_t>(kind.topDown ? -height : height), 4);
    PutLittleEndian(out, 1, 2);
    PutLittleEndian(out, static_cast<std::uint32_t>(kind.bits), 2);
    PutLittleEndian(out, static_cast<std::uint32_t>(kind.compression), 4);
    PutLittleEndian(out, imageBytes, 4);
    out.resize(40, 0); // resolution, palette size (all), important colours
    const bool masksInside = kind.info == BmpInfo::WindowsV4 || kind.info == BmpInfo::WindowsV5;
    if (masksInside || (kind.info == BmpInfo::Windows && kind.compression == 3)) {
        for (int i = 0; i < (masksInside ? 4 : 3); ++i) {
            PutLittleEndian(out, kind.masks[static_cast<std::size_t>(i)], 4);
        }
    }
    if (masksInside) {
        PutLittleEndian(out, 0x73524742, 4); // the sRGB colour space
    }
    out.resize(out.size() +
                   (size > out.size() && kind.info != BmpInfo::Windows ? size - out.size() : 0),
               0);
    return out;
}

std::uint32_t intendedColor(const BmpKind& kind, int x, int y) {
    if (isIndexed(kind)) {
        return paletteColor(sampleIndex(x, y, paletteSize(kind)), paletteSize(kind));
    }
    const std::uint32_t rgb = sampleColor(x, y);
    if (kind.bits == 24) {
        return rgb;
    }
    const std::array<std::uint32_t, 4> m = effectiveMasks(kind);
    std::uint32_t result = 0;
    for (int c = 0; c < 3; ++c) {
        const std::uint32_t value = rgb >> (16 - 8 * c) & 0xFF;
        result |= std::uint32_t{fromMask(inMask(value, m[static_cast<std::size_t>(c)]),
                                         m[static_cast<std::size_t>(c)])}
                  << (16 - 8 * c);
    }
    return result;
}

} // namespace

RgbImage IntendedPicture(const BmpKind& kind) {
    RgbImage image;
    image.width = kWidth;
    image.height = kHeight;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const std::uint32_t rgb = intendedColor(kind, x, y);
            image.rgb.insert(image.rgb.end(),
                             {static_cast<std::uint8_t>(rgb >> 16),
                              static_cast<std::uint8_t>(rgb >> 8), static_cast<std::uint8_t>(rgb)});
        }
    }
    return image;
}

void PutLittleEndian(Bytes& out, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) {
        out.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
}

Bytes MakeBmp(const BmpKind& kind) {
    const bool runs = kind.compression == 1 || kind.compression == 2;
    const Bytes pixels = runs ? runLengthPixels(kind) : plainPixels(kind);
    const int width = runs ? kRunWidth : kWidth;
    const int height = runs ? kRunHeight : kHeight;
    const Bytes info = infoHeader(kind, width, height, static_cast<std::uint32_t>(pixels.size()));
    const Bytes colours = palette(kind);
    const auto offset = static_cast<std::uint32_t>(14 + info.size() + colours.size());
    Bytes out = {'B', 'M'};
    PutLittleEndian(out, offset + static_cast<std::uint32_t>(pixels.size()), 4);
    PutLittleEndian(out, 0, 4);
    PutLittleEndian(out, offset, 4);
    out.insert(out.end(), info.begin(), info.end());
    out.insert(out.end(), colours.begin(), colours.end());
    out.insert(out.end(), pixels.begin(), pixels.end());
    return out;
}

Bytes BmpHeaders(std::int32_t width, std::int32_t height, int bits, int compression,
                 std::uint32_t paletteBytes, std::uint32_t imageBytes) {
    Bytes out = {'B', 'M'};
    PutLittleEndian(out, 54 + paletteBytes + imageBytes, 4);
    PutLittleEndian(out, 0, 4);
    PutLittleEndian(out, 54 + paletteBytes, 4);
    for (const std::uint32_t field :
         {40u, static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)}) {
        PutLittleEndian(out, field, 4);
    }
    PutLittleEndian(out, 1, 2);
    PutLittleEndian(out, static_cast<std::uint32_t>(bits), 2);
    PutLittleEndian(out, static_cast<std::uint32_t>(compression), 4);
    PutLittleEndian(out, imageBytes, 4);
    out.insert(out.end(), 16, 0); // resolution, palette size, important colours
    return out;
}

} // namespace sw::test
