#include "imaging/PlainBmpReader.h"

#include <array>
#include <cstdint>
#include <fstream>

namespace sw {
namespace {

constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kInfoHeaderSize = 40;

std::uint32_t littleEndian(const std::uint8_t* bytes, int count) {
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i) {
        value = value << 8 | bytes[i];
    }
    return value;
}

std::int32_t signed32(const std::uint8_t* bytes) {
    return static_cast<std::int32_t>(littleEndian(bytes, 4));
}

} // namespace

std::optional<PlainBmp> ProbePlainBmp(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::array<std::uint8_t, kFileHeaderSize + kInfoHeaderSize> header{};
    if (!file.read(reinterpret_cast<char*>(header.data()), header.size())) {
        return std::nullopt;
    }
    const std::uint8_t* info = header.data() + kFileHeaderSize;
    const bool plain = header[0] == 'B' && header[1] == 'M' &&
                       littleEndian(info, 4) >= kInfoHeaderSize &&
                       littleEndian(info + 12, 2) == 1 && littleEndian(info + 14, 2) == 24 &&
                       littleEndian(info + 16, 4) == 0;
    const std::int32_t width = signed32(info + 4);
    const std::int32_t height = signed32(info + 8);
    // A negative height stores the rows top-down: the general decoder turns those.
    if (!plain || width <= 0 || height <= 0) {
        return std::nullopt;
    }
    return PlainBmp{width, height, static_cast<long long>(littleEndian(header.data() + 10, 4))};
}

std::optional<Picture> ReadPlainBmp(const std::string& path, const PlainBmp& layout) {
    const std::size_t size =
        Picture::Stride(layout.width) * static_cast<std::size_t>(layout.height);
    std::vector<std::uint8_t> bytes(size);
    std::ifstream file(path, std::ios::binary);
    file.seekg(layout.pixelOffset);
    if (!file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size))) {
        return std::nullopt;
    }
    return Picture::FromBottomUpBgr(layout.width, layout.height, std::move(bytes));
}

} // namespace sw
