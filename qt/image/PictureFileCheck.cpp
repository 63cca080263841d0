#include "qt/image/PictureFileCheck.h"

#include "imaging/PictureProblems.h"

#include <array>
#include <fstream>

namespace sw {
namespace {

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
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return std::nullopt;
    }
    const bool cutOff = format == "jpeg"  ? jpgIsCutOff(file)
                        : format == "gif" ? gifIsCutOff(file)
                                          : false;
    return cutOff ? std::optional<std::string>(kIncompleteFileProblem) : std::nullopt;
}

std::optional<std::pair<int, int>> GifScreenSize(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::array<unsigned char, 10> header{};
    if (!file.read(reinterpret_cast<char*>(header.data()), header.size()) || header[0] != 'G' ||
        header[1] != 'I' || header[2] != 'F') {
        return std::nullopt;
    }
    return std::pair<int, int>(header[6] | header[7] << 8, header[8] | header[9] << 8);
}

} // namespace sw
