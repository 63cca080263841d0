#include "PieceFormat.h"

#include "common/Text.h"

#include <array>
#include <fstream>

namespace sw {

std::optional<PieceFormat> ParsePieceFormat(const std::string& text) {
    const std::string upper = UpperCase(text);
    if (upper == "BMP") {
        return PieceFormat::Bmp;
    }
    if (upper == "JPG" || upper == "JPEG") {
        return PieceFormat::Jpg;
    }
    if (upper == "PNG") {
        return PieceFormat::Png;
    }
    if (upper == "WEBP") {
        return PieceFormat::Webp;
    }
    return std::nullopt;
}

PieceFormat DefaultFormatFor(const std::string& picturePath) {
    // Every JPEG stream starts with the start-of-image marker and a second marker.
    std::array<char, 3> head{};
    std::ifstream file(picturePath, std::ios::binary);
    file.read(head.data(), head.size());
    const bool jpeg = file.gcount() == 3 && static_cast<unsigned char>(head[0]) == 0xFF &&
                      static_cast<unsigned char>(head[1]) == 0xD8 &&
                      static_cast<unsigned char>(head[2]) == 0xFF;
    return jpeg ? PieceFormat::Jpg : PieceFormat::Bmp;
}

std::string NameOf(PieceFormat format) {
    switch (format) {
    case PieceFormat::Bmp:
        return "bmp";
    case PieceFormat::Jpg:
        return "jpg";
    case PieceFormat::Png:
        return "png";
    case PieceFormat::Webp:
        return "webp";
    }
    return "bmp";
}

std::string ExtensionOf(PieceFormat format) {
    std::string extension = ".";
    extension += NameOf(format);
    return extension;
}

bool IsLossless(PieceFormat format) {
    return format == PieceFormat::Bmp || format == PieceFormat::Png;
}

} // namespace sw
