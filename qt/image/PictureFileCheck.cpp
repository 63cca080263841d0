#include "qt/image/PictureFileCheck.h"

#include "imaging/PictureProblems.h"

#include <array>
#include <cstring>
#include <fstream>

namespace sw {
namespace {

// A complete JPG ends its last scan with an end-of-image marker. Inside
// entropy-coded data a 0xFF byte is always followed by 0x00 or a restart
// marker, so the marker bytes can be looked for without parsing. The bytes
// between 0xFF bytes are passed over by memchr: a large picture's file is
// read at the speed of the disk.
class JpgEndWatch {
public:
    void Look(const unsigned char* bytes, std::size_t count) {
        if (count == 0) {
            return;
        }
        if (afterMarkerStart_) {
            see(bytes[0]);
        }
        const unsigned char* end = bytes + count;
        for (const unsigned char* at = find(bytes, end); at != nullptr; at = find(at + 1, end)) {
            if (at + 1 < end) {
                see(at[1]);
            }
        }
        afterMarkerStart_ = bytes[count - 1] == 0xFF;
    }
    bool CutOff() const { return !endSeen_; }

private:
    static const unsigned char* find(const unsigned char* from, const unsigned char* end) {
        return static_cast<const unsigned char*>(
            std::memchr(from, 0xFF, static_cast<std::size_t>(end - from)));
    }
    // The byte after a 0xFF.
    void see(unsigned char marker) {
        if (marker == 0xDA) {
            afterScan_ = true;
            endSeen_ = false;
        } else if (marker == 0xD9 && afterScan_) {
            endSeen_ = true;
        }
    }
    bool afterMarkerStart_ = false;
    bool afterScan_ = false;
    bool endSeen_ = false;
};

bool jpgIsCutOff(std::ifstream& file) {
    JpgEndWatch watch;
    std::array<char, 65536> chunk{};
    while (file.read(chunk.data(), chunk.size()) || file.gcount() > 0) {
        watch.Look(reinterpret_cast<const unsigned char*>(chunk.data()),
                   static_cast<std::size_t>(file.gcount()));
    }
    return watch.CutOff();
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
