#include "imaging/BmpRunLengthDecoder.h"

#include "imaging/BmpRowDecoder.h"
#include "imaging/PictureProblems.h"

#include <cstring>

namespace sw {
namespace {

enum Escape : std::uint8_t { EndOfLine = 0, EndOfBitmap = 1, Delta = 2 };

} // namespace

BmpRunLengthDecoder::BmpRunLengthDecoder(const BmpHeader& header, std::uint8_t* pixels,
                                         std::size_t stride)
    : header_(header), pixels_(pixels), stride_(stride), columns_(header.Columns()),
      rows_(header.Rows()) {}

// One row of the first palette colour, copied to every row: a large picture
// whose data ends at once costs one pass over its memory.
void BmpRunLengthDecoder::fillWithBackground() {
    const std::uint32_t background = PaletteColor(header_, 0);
    const auto rowBytes = 3 * static_cast<std::size_t>(columns_);
    for (std::size_t x = 0; x < rowBytes; x += 3) {
        PutBgr(pixels_ + x, background);
    }
    for (std::int64_t y = 1; y < rows_; ++y) {
        std::memcpy(pixels_ + stride_ * static_cast<std::size_t>(y), pixels_, rowBytes);
    }
}

std::optional<std::string> BmpRunLengthDecoder::Decode(const std::vector<std::uint8_t>& data) {
    fillWithBackground();
    while (!finished() && pos_ + 2 <= data.size()) {
        const std::uint8_t count = data[pos_];
        const std::uint8_t value = data[pos_ + 1];
        pos_ += 2;
        if (count > 0) {
            run(count, value);
        } else if (!escape(data, value)) {
            break;
        }
    }
    return finished() ? std::nullopt : std::optional<std::string>(kIncompleteFileProblem);
}

// False when the data ends inside the escape.
bool BmpRunLengthDecoder::escape(const std::vector<std::uint8_t>& data, std::uint8_t code) {
    if (code == EndOfLine) {
        column_ = 0;
        ++row_;
    } else if (code == EndOfBitmap) {
        ended_ = true;
    } else if (code == Delta) {
        if (pos_ + 2 > data.size()) {
            return false;
        }
        column_ += data[pos_];
        row_ += data[pos_ + 1];
        pos_ += 2;
    } else {
        return absolute(data, code);
    }
    return true;
}

// `count` indices as they stand, padded to a whole 16-bit word.
bool BmpRunLengthDecoder::absolute(const std::vector<std::uint8_t>& data, int count) {
    const bool nibbles = header_.bitCount == 4;
    const std::size_t bytes =
        nibbles ? (static_cast<std::size_t>(count) + 1) / 2 : static_cast<std::size_t>(count);
    if (pos_ + bytes > data.size()) {
        return false;
    }
    for (int i = 0; i < count; ++i) {
        const std::uint8_t byte =
            data[pos_ + (nibbles ? static_cast<std::size_t>(i / 2) : static_cast<std::size_t>(i))];
        put(nibbles ? (i % 2 == 0 ? byte >> 4 : byte & 0x0F) : byte);
    }
    pos_ += bytes + bytes % 2;
    return true;
}

// `count` pixels of one index, or of two alternating ones in 4-bit data.
void BmpRunLengthDecoder::run(int count, std::uint8_t value) {
    const bool nibbles = header_.bitCount == 4;
    for (int i = 0; i < count; ++i) {
        put(nibbles ? (i % 2 == 0 ? value >> 4 : value & 0x0F) : value);
    }
}

void BmpRunLengthDecoder::put(unsigned index) {
    if (column_ < columns_ && row_ < rows_) {
        PutBgr(pixels_ + stride_ * static_cast<std::size_t>(row_) +
                   3 * static_cast<std::size_t>(column_),
               PaletteColor(header_, index));
    }
    ++column_;
}

} // namespace sw
