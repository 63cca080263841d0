#include "imaging/BmpHeader.h"

#include "imaging/PictureProblems.h"

#include <algorithm>

namespace sw {
namespace {

constexpr std::size_t kFileHeaderSize = 14;
// The most of an info header that holds fields; larger headers are skipped past.
constexpr std::size_t kLargestKnownInfo = 124;
constexpr std::uint32_t kOs2CoreInfo = 12;

enum Compression : std::uint32_t { Rgb = 0, Rle8 = 1, Rle4 = 2, BitFields = 3, AlphaBitFields = 6 };

// Little-endian bytes of a header, with absent fields read as 0.
class Fields {
public:
    Fields(const std::uint8_t* bytes, std::size_t size) : bytes_(bytes), size_(size) {}
    std::uint32_t At(std::size_t at, int count) const {
        std::uint32_t value = 0;
        for (int i = count - 1; i >= 0; --i) {
            const std::size_t index = at + static_cast<std::size_t>(i);
            value = value << 8 | (index < size_ ? bytes_[index] : 0u);
        }
        return value;
    }
    std::int32_t Signed(std::size_t at) const { return static_cast<std::int32_t>(At(at, 4)); }

private:
    const std::uint8_t* bytes_;
    std::size_t size_;
};

BmpHeaderRead refused(std::string problem) {
    return {std::nullopt, std::move(problem)};
}

// The OS/2 2.x headers give the compression numbers 3 and 4 other meanings
// than the Windows ones; only the Windows headers have these sizes.
bool isWindowsInfo(std::uint32_t infoSize) {
    return infoSize == 40 || infoSize == 52 || infoSize == 56 || infoSize >= 108;
}

std::string unreadable(const std::string& what) {
    return "the BMP file stores its pixels in a way this program cannot read (" + what + ")";
}

// Sets the storage kind and the default masks; a problem when the pair of
// compression and bit count is none that BMP files use.
std::optional<std::string> chooseStorage(BmpHeader& h, std::uint32_t compression) {
    const int bits = h.bitCount;
    const bool masked = compression == BitFields || compression == AlphaBitFields;
    if (compression == Rgb && (bits == 1 || bits == 4 || bits == 8)) {
        h.storage = BmpStorage::Indexed;
    } else if (compression == Rgb && bits == 24) {
        h.storage = BmpStorage::Bgr;
    } else if (compression == Rgb && bits == 16) {
        h.storage = BmpStorage::Masked;
        h.masks = {0x7C00, 0x03E0, 0x001F};
    } else if (compression == Rgb && bits == 32) {
        h.storage = BmpStorage::Masked;
        h.masks = {0xFF0000, 0x00FF00, 0x0000FF};
    } else if ((compression == Rle8 && bits == 8) || (compression == Rle4 && bits == 4)) {
        h.storage = BmpStorage::RunLength;
    } else if (masked && isWindowsInfo(h.infoSize) && (bits == 16 || bits == 32)) {
        h.storage = BmpStorage::Masked;
    } else if (compression == Rgb) {
        return unreadable(std::to_string(bits) + " bits a pixel");
    } else {
        return unreadable("compression " + std::to_string(compression));
    }
    return std::nullopt;
}

std::optional<std::string> sizeProblem(const BmpHeader& h) {
    if (h.width < 0) {
        return "the BMP header is damaged: it gives a negative width";
    }
    if (h.width == 0 || h.height == 0) {
        return "the BMP header is damaged: it gives a width or height of 0";
    }
    if (h.storage == BmpStorage::RunLength && h.TopDown()) {
        return "the BMP header is damaged: run-length pixels cannot run from the top down";
    }
    return std::nullopt;
}

// The masks behind a 40-byte header, which has no room for them inside.
bool readTrailingMasks(std::istream& file, BmpHeader& h, std::uint32_t compression) {
    if (h.infoSize != 40 || h.storage != BmpStorage::Masked || compression == Rgb) {
        return true;
    }
    std::uint8_t bytes[16] = {};
    const std::size_t count = compression == AlphaBitFields ? 16 : 12;
    if (!ReadExactly(file, bytes, count)) {
        return false;
    }
    const Fields masks(bytes, count);
    h.masks = {masks.At(0, 4), masks.At(4, 4), masks.At(8, 4)};
    return true;
}

// How many colours the palette holds: those the header names, no more than
// the bits can index, and no more than fit before the pixels.
std::size_t paletteCount(const BmpHeader& h, std::uint32_t colorsUsed, std::uint64_t paletteStart,
                         std::size_t entrySize) {
    const std::size_t most = std::size_t{1} << h.bitCount;
    std::size_t count = colorsUsed == 0 ? most : std::min<std::size_t>(colorsUsed, most);
    if (h.pixelOffset >= paletteStart) {
        count = std::min<std::uint64_t>(count, (h.pixelOffset - paletteStart) / entrySize);
    }
    return count;
}

bool readPalette(std::istream& file, BmpHeader& h, std::size_t count, std::size_t entrySize) {
    std::vector<std::uint8_t> bytes(count * entrySize);
    if (!ReadExactly(file, bytes.data(), bytes.size())) {
        return false;
    }
    h.palette.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const std::uint8_t* entry = bytes.data() + i * entrySize;
        h.palette[i] = std::uint32_t{entry[2]} << 16 | std::uint32_t{entry[1]} << 8 | entry[0];
    }
    return true;
}

// Reads the info header's fields after its size; false when the file ends inside it.
bool readInfoFields(std::istream& file, BmpHeader& h, std::uint32_t& compression,
                    std::uint32_t& colorsUsed) {
    std::uint8_t bytes[kLargestKnownInfo] = {};
    const std::size_t stored = std::min<std::size_t>(h.infoSize, kLargestKnownInfo) - 4;
    const std::size_t skipped = h.infoSize - 4 - stored;
    if (!ReadExactly(file, bytes + 4, stored) ||
        file.ignore(static_cast<std::streamsize>(skipped)).gcount() !=
            static_cast<std::streamsize>(skipped)) {
        return false;
    }
    const Fields info(bytes, stored + 4);
    if (h.infoSize == kOs2CoreInfo) {
        h.width = static_cast<std::int32_t>(info.At(4, 2));
        h.height = static_cast<std::int32_t>(info.At(6, 2));
        h.bitCount = static_cast<int>(info.At(10, 2));
        return true;
    }
    h.width = info.Signed(4);
    h.height = info.Signed(8);
    h.bitCount = static_cast<int>(info.At(14, 2));
    compression = info.At(16, 4);
    colorsUsed = info.At(32, 4);
    h.masks = {info.At(40, 4), info.At(44, 4), info.At(48, 4)};
    return true;
}

} // namespace

std::int64_t BmpHeader::Columns() const {
    return width;
}

std::int64_t BmpHeader::Rows() const {
    return height < 0 ? -std::int64_t{height} : height;
}

std::uint64_t BmpHeader::RowBytes() const {
    const auto bitsInRow =
        static_cast<std::uint64_t>(Columns()) * static_cast<std::uint64_t>(bitCount);
    return (bitsInRow + 31) / 32 * 4;
}

bool BmpHeader::HoldsEveryRow(std::uint64_t fileSize) const {
    if (storage == BmpStorage::RunLength) {
        return true;
    }
    // A division, not a product: rows times row bytes can pass 64 bits on a hostile header.
    const std::uint64_t rowBytes = RowBytes();
    return rowBytes > 0 && fileSize >= pixelOffset &&
           (fileSize - pixelOffset) / rowBytes >= static_cast<std::uint64_t>(Rows());
}

bool ReadExactly(std::istream& file, std::uint8_t* into, std::size_t count) {
    return static_cast<bool>(
        file.read(reinterpret_cast<char*>(into), static_cast<std::streamsize>(count)));
}

bool StartsLikeBmp(std::istream& file) {
    char magic[2] = {};
    return file.read(magic, 2) && magic[0] == 'B' && magic[1] == 'M';
}

BmpHeaderRead ReadBmpHeader(std::istream& file) {
    std::uint8_t start[kFileHeaderSize + 4] = {};
    if (!ReadExactly(file, start, sizeof start)) {
        return refused(start[0] == 'B' && start[1] == 'M' ? kIncompleteFileProblem
                                                          : kNotAPictureProblem);
    }
    const Fields fields(start, sizeof start);
    if (start[0] != 'B' || start[1] != 'M') {
        return refused(kNotAPictureProblem);
    }
    BmpHeader h;
    h.pixelOffset = fields.At(10, 4);
    h.infoSize = fields.At(14, 4);
    if (h.infoSize != kOs2CoreInfo && (h.infoSize < 16 || h.infoSize > 65536)) {
        return refused("the BMP header is damaged: no kind of BMP has an info header of " +
                       std::to_string(h.infoSize) + " bytes");
    }
    std::uint32_t compression = Rgb;
    std::uint32_t colorsUsed = 0;
    if (!readInfoFields(file, h, compression, colorsUsed)) {
        return refused(kIncompleteFileProblem);
    }
    if (const std::optional<std::string> problem = chooseStorage(h, compression)) {
        return refused(*problem);
    }
    if (const std::optional<std::string> problem = sizeProblem(h)) {
        return refused(*problem);
    }
    if (!readTrailingMasks(file, h, compression)) {
        return refused(kIncompleteFileProblem);
    }
    if (h.storage == BmpStorage::Indexed || h.storage == BmpStorage::RunLength) {
        const std::size_t entrySize = h.infoSize == kOs2CoreInfo ? 3 : 4;
        const std::uint64_t paletteStart = kFileHeaderSize + std::uint64_t{h.infoSize};
        const std::size_t count = paletteCount(h, colorsUsed, paletteStart, entrySize);
        if (count == 0) {
            return refused("the BMP file is damaged: its picture needs colours, and it has none");
        }
        if (!readPalette(file, h, count, entrySize)) {
            return refused(kIncompleteFileProblem);
        }
    }
    // Some writers leave the offset out: the pixels then follow the headers.
    if (h.pixelOffset == 0) {
        h.pixelOffset = static_cast<std::uint32_t>(file.tellg());
    }
    return {h, ""};
}

} // namespace sw
