#include "imaging/BmpWriter.h"

#include "common/FileWriteError.h"
#include "imaging/Picture.h"

#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

namespace sw {
namespace {

constexpr std::uint32_t kFileHeaderSize = 14;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kPixelOffset = kFileHeaderSize + kInfoHeaderSize;

// Little-endian, byte by byte, whatever the machine's own order.
class LittleEndianBytes {
public:
    explicit LittleEndianBytes(std::vector<std::uint8_t>& out) : out_(out) {}
    void U16(std::uint16_t value) { Bytes(value, 2); }
    void U32(std::uint32_t value) { Bytes(value, 4); }

private:
    void Bytes(std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i) {
            out_.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
        }
    }
    std::vector<std::uint8_t>& out_;
};

void putHeaders(std::vector<std::uint8_t>& out, const Picture& picture, std::uint32_t imageSize) {
    LittleEndianBytes le(out);
    out.push_back('B');
    out.push_back('M');
    le.U32(kPixelOffset + imageSize);
    le.U32(0); // two reserved words
    le.U32(kPixelOffset);
    le.U32(kInfoHeaderSize);
    le.U32(static_cast<std::uint32_t>(picture.Width()));
    le.U32(static_cast<std::uint32_t>(picture.Height())); // positive: bottom-up
    le.U16(1);                                            // planes
    le.U16(24);                                           // bits a pixel
    le.U32(0);                                            // no compression
    le.U32(imageSize);
    for (int unused = 0; unused < 4; ++unused) {
        le.U32(0); // resolution x and y, palette size, important colours
    }
}

// The rows from the bottom up, each padded with zeros to a multiple of 4 bytes.
void putRows(std::vector<std::uint8_t>& out, const Picture& picture) {
    const std::size_t rowBytes = 3 * static_cast<std::size_t>(picture.Width());
    const std::size_t pad = Picture::Stride(picture.Width()) - rowBytes;
    for (int y = picture.Height() - 1; y >= 0; --y) {
        const std::uint8_t* row = picture.Row(y);
        out.insert(out.end(), row, row + rowBytes);
        out.insert(out.end(), pad, 0);
    }
}

} // namespace

EncodedFile EncodeBmp(const Picture& picture, const std::string& fileName) {
    if (picture.IsEmpty()) {
        throw FileWriteError(fileName, "there is no picture to save");
    }
    const std::uint64_t imageSize = std::uint64_t{Picture::Stride(picture.Width())} *
                                    static_cast<std::uint64_t>(picture.Height());
    if (imageSize + kPixelOffset > std::numeric_limits<std::uint32_t>::max()) {
        throw FileWriteError(fileName, "the picture is too large for a BMP file");
    }
    EncodedFile file;
    file.bytes.reserve(kPixelOffset + imageSize);
    putHeaders(file.bytes, picture, static_cast<std::uint32_t>(imageSize));
    putRows(file.bytes, picture);
    return file;
}

void SavePicture(const Picture& picture, const std::string& fileName) {
    WriteEncodedFile(EncodeBmp(picture, fileName), fileName);
}

} // namespace sw
