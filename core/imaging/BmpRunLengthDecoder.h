#pragma once

#include "imaging/BmpHeader.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sw {

// Decodes the 4- and 8-bit run-length pixels of a BMP into bottom-up rows of
// blue, green and red. Pixels that the runs skip (with a delta or an early
// end of line) keep the first palette colour, as other decoders show them.
class BmpRunLengthDecoder {
public:
    BmpRunLengthDecoder(const BmpHeader& header, std::uint8_t* pixels, std::size_t stride);

    // A problem when the data ends before the picture does.
    std::optional<std::string> Decode(const std::vector<std::uint8_t>& data);

private:
    void fillWithBackground();
    bool escape(const std::vector<std::uint8_t>& data, std::uint8_t code);
    bool absolute(const std::vector<std::uint8_t>& data, int count);
    void run(int count, std::uint8_t value);
    void put(unsigned index);
    bool finished() const { return ended_ || row_ >= rows_; }

    const BmpHeader& header_;
    std::uint8_t* pixels_;
    std::size_t stride_;
    std::int64_t columns_;
    std::int64_t rows_;
    std::size_t pos_ = 0;
    std::int64_t column_ = 0;
    std::int64_t row_ = 0;
    bool ended_ = false;
};

} // namespace sw
