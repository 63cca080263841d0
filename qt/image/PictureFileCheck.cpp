#include "qt/image/PictureFileCheck.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <limits>

namespace sw {
namespace {

constexpr const char* kCutOff = "the file is incomplete: it ends before the picture does";

struct BmpHeader {
    std::uint32_t pixelOffset = 0;
    std::uint32_t infoSize = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint32_t bits = 0;
    std::uint32_t compression = 0;
};

std::uint32_t littleEndian(const std::array<unsigned char, 54>& bytes, int at, int count) {
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i) {
        value = value << 8 | bytes[static_cast<std::size_t>(at + i)];
    }
    return value;
}

// The file and info headers of a BMP file with a Windows (40 bytes or more) header.
std::optional<BmpHeader> readBmpHeader(std::istream& file) {
    std::array<unsigned char, 54> bytes{};
    if (!file.read(reinterpret_cast<char*>(bytes.data()), bytes.size()) || bytes[0] != 'B' ||
        bytes[1] != 'M' || littleEndian(bytes, 14, 4) < 40) {
        return std::nullopt;
    }
    return BmpHeader{littleEndian(bytes, 10, 4),
                     littleEndian(bytes, 14, 4),
                     static_cast<std::int32_t>(littleEndian(bytes, 18, 4)),
                     static_cast<std::int32_t>(littleEndian(bytes, 22, 4)),
                     littleEndian(bytes, 28, 2),
                     littleEndian(bytes, 30, 4)};
}

// An uncompressed BMP must hold every row its header announces; run-length
// data says nothing about its length.
bool bmpIsCutOff(std::ifstream& file, std::uint64_t fileSize) {
    const std::optional<BmpHeader> header = readBmpHeader(file);
    if (!header || (header->compression != 0 && header->compression != 3)) {
        return false;
    }
    const auto width = static_cast<std::uint64_t>(std::abs(std::int64_t{header->width}));
    const auto rows = static_cast<std::uint64_t>(std::abs(std::int64_t{header->height}));
    const std::uint64_t stride = (width * header->bits + 31) / 32 * 4;
    return fileSize < header->pixelOffset + stride * rows;
}

// A complete JPG ends its last scan with an end-of-image marker. Inside
// entropy-coded data a 0xFF byte is always followed by 0x00 or a restart
// marker, so the marker bytes can be looked for without parsing.
bool jpgIsCutOff(std::ifstream& file) {
    bool afterScan = false;
    bool endSeen = false;
    unsigned char previous = 0;
    std::array<char, 65536> chunk{};
    while (file.read(chunk.data(), chunk.size()) || file.gcount() > 0) {
        for (std::streamsize i = 0; i < file.gcount(); ++i) {
            const auto byte = static_cast<unsigned char>(chunk[static_cast<std::size_t>(i)]);
            if (previous == 0xFF && byte == 0xDA) {
                afterScan = true;
                endSeen = false;
            } else if (previous == 0xFF && byte == 0xD9 && afterScan) {
                endSeen = true;
            }
            previous = byte;
        }
    }
    return !endSeen;
}

// Skips `count` bytes; false when the file ends first.
bool skip(std::istream& in, std::streamsize count) {
    in.ignore(count);
    return in.gcount() == count;
}

// Skips a chain of data sub-blocks up to its empty block; false when the file ends first.
bool skipSubBlocks(std::istream& in) {
    for (int size = in.get(); size != 0; size = in.get()) {
        if (size == std::char_traits<char>::eof() || !skip(in, size)) {
            return false;
        }
    }
    return true;
}

// The size of a colour table that a GIF flags byte announces, 0 for none.
std::streamsize colourTableSize(int flags) {
    return (flags & 0x80) != 0 ? 3 * (std::streamsize{2} << (flags & 7)) : 0;
}

// A GIF must hold its first frame whole; what follows it is never shown.
bool gifIsCutOff(std::ifstream& file) {
    std::array<char, 13> screen{};
    if (!file.read(screen.data(), screen.size()) ||
        !skip(file, colourTableSize(static_cast<unsigned char>(screen[10])))) {
        return true;
    }
    for (int block = file.get(); block != std::char_traits<char>::eof(); block = file.get()) {
        if (block == 0x21) { // an extension: its label, then its data
            if (file.get() == std::char_traits<char>::eof() || !skipSubBlocks(file)) {
                return true;
            }
        } else if (block == 0x2C) { // the first image: descriptor, colours, code size, data
            std::array<char, 9> descriptor{};
            return !file.read(descriptor.data(), descriptor.size()) ||
                   !skip(file, colourTableSize(static_cast<unsigned char>(descriptor[8])) + 1) ||
                   !skipSubBlocks(file);
        } else {
            return false; // the trailer or an unknown block: for the decoder to judge
        }
    }
    return true;
}

} // namespace

std::optional<std::string> TruncationProblem(const std::string& path, const std::string& format) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file) {
        return std::nullopt;
    }
    const auto fileSize = static_cast<std::uint64_t>(file.tellg());
    file.seekg(0);
    const bool cutOff = format == "bmp"    ? bmpIsCutOff(file, fileSize)
                        : format == "jpeg" ? jpgIsCutOff(file)
                        : format == "gif"  ? gifIsCutOff(file)
                                           : false;
    return cutOff ? std::optional<std::string>(kCutOff) : std::nullopt;
}

std::optional<QSize> ClaimedBmpSize(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::optional<BmpHeader> header = readBmpHeader(file);
    if (!header) {
        return std::nullopt;
    }
    const auto height = static_cast<int>(std::min<std::int64_t>(
        std::abs(std::int64_t{header->height}), std::numeric_limits<int>::max()));
    return QSize(header->width, height);
}

} // namespace sw
