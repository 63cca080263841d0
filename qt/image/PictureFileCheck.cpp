#include "qt/image/PictureFileCheck.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>

namespace sw {
namespace {

constexpr const char* kCutOff = "the file is incomplete: it ends before the picture does";

std::uint32_t littleEndian(const std::array<unsigned char, 54>& bytes, int at, int count) {
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i) {
        value = value << 8 | bytes[static_cast<std::size_t>(at + i)];
    }
    return value;
}

// An uncompressed BMP must hold every row its header announces.
bool bmpIsCutOff(std::ifstream& file, std::uint64_t fileSize) {
    std::array<unsigned char, 54> header{};
    if (!file.read(reinterpret_cast<char*>(header.data()), header.size())) {
        return false; // too short for the decoder to have read it at all
    }
    const std::uint32_t infoSize = littleEndian(header, 14, 4);
    const std::uint32_t compression = littleEndian(header, 30, 4);
    if (infoSize < 40 || (compression != 0 && compression != 3)) {
        return false; // old headers and run-length data say nothing about the length
    }
    const std::uint64_t width = littleEndian(header, 18, 4);
    const auto height = static_cast<std::int32_t>(littleEndian(header, 22, 4));
    const std::uint64_t bits = littleEndian(header, 28, 2);
    const std::uint64_t stride = (width * bits + 31) / 32 * 4;
    const std::uint64_t rows = static_cast<std::uint64_t>(std::abs(std::int64_t{height}));
    return fileSize < littleEndian(header, 10, 4) + stride * rows;
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
                                           : false;
    return cutOff ? std::optional<std::string>(kCutOff) : std::nullopt;
}

} // namespace sw
