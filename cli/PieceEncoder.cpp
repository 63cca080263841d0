#include "PieceEncoder.h"

#include "PngFile.h"
#include "WebpFile.h"
#include "qt/image/QtPictureLoader.h"

#include <stdexcept>

namespace sw {

void PieceEncoder::SaveBmp(const Picture& clip, const std::string& fileName) {
    imaging_.SaveBmp(clip, fileName);
}

bool PieceEncoder::SaveJpg(const Picture& clip, const std::string& fileName, i32 quality) {
    switch (format_) {
    case PieceFormat::Png:
        WritePngFile(clip, fileName);
        return true;
    case PieceFormat::Webp:
        WriteWebpFile(clip, fileName, quality);
        return true;
    case PieceFormat::Bmp:
        SaveBmp(clip, fileName);
        return true;
    case PieceFormat::Jpg:
        break;
    }
    return imaging_.SaveJpg(clip, fileName, quality);
}

Picture ReadPiece(const std::string& fileName, PieceFormat format) {
    if (format == PieceFormat::Png) {
        return ReadPngFile(fileName);
    }
    if (format == PieceFormat::Webp) {
        return ReadWebpFile(fileName);
    }
    QtPictureLoader loader;
    LoadedPicture loaded = loader.LoadPicture(fileName);
    if (!loaded.ok()) {
        throw std::runtime_error(loaded.error);
    }
    return loaded.picture;
}

} // namespace sw
