#include "imaging/BmpReader.h"

#include "imaging/BmpRowDecoder.h"
#include "imaging/BmpRunLengthDecoder.h"
#include "imaging/PictureProblems.h"
#include "imaging/PixelBuffer.h"

#include <utility>
#include <vector>

namespace sw {
namespace {

using Bytes = std::vector<std::uint8_t>;

// Everything from the pixel offset to the end of the file.
bool readRest(std::istream& file, std::uint32_t offset, Bytes& data) {
    file.seekg(0, std::ios::end);
    const std::streamoff size = file.tellg();
    if (size < offset) {
        return false;
    }
    data.resize(static_cast<std::size_t>(size - offset));
    file.seekg(offset);
    return ReadExactly(file, data.data(), data.size());
}

bool readRunLength(std::istream& file, const BmpHeader& header, Bytes& pixels, std::size_t stride) {
    Bytes data;
    return readRest(file, header.pixelOffset, data) &&
           !BmpRunLengthDecoder(header, pixels.data(), stride).Decode(data);
}

// The stored rows straight into the picture, which keeps them the same way.
bool readPlain(std::istream& file, Bytes& pixels) {
    return ReadExactly(file, pixels.data(), pixels.size());
}

bool readRows(std::istream& file, const BmpHeader& header, Bytes& pixels, std::size_t stride) {
    const BmpRowDecoder decoder(header);
    const auto rows = static_cast<std::size_t>(header.Rows());
    Bytes stored(static_cast<std::size_t>(header.RowBytes()));
    for (std::size_t i = 0; i < rows; ++i) {
        if (!ReadExactly(file, stored.data(), stored.size())) {
            return false;
        }
        const std::size_t bottomUp = header.TopDown() ? rows - 1 - i : i;
        decoder.Decode(stored.data(), pixels.data() + stride * bottomUp);
    }
    return true;
}

} // namespace

BmpRead ReadBmpPixels(std::istream& file, const BmpHeader& header) {
    const auto width = static_cast<int>(header.Columns());
    const auto height = static_cast<int>(header.Rows());
    const std::size_t stride = Picture::Stride(width);
    Bytes pixels = PixelBuffer(stride * static_cast<std::size_t>(height));
    bool complete = false;
    if (header.storage == BmpStorage::RunLength) {
        complete = readRunLength(file, header, pixels, stride);
    } else {
        file.seekg(header.pixelOffset);
        complete = header.storage == BmpStorage::Bgr && !header.TopDown()
                       ? readPlain(file, pixels)
                       : readRows(file, header, pixels, stride);
    }
    if (!complete) {
        return {std::nullopt, kIncompleteFileProblem};
    }
    return {Picture::FromBottomUpBgr(width, height, std::move(pixels)), ""};
}

} // namespace sw
