#include "PieceEncoder.h"

#include "PngFile.h"
#include "WebpFile.h"
#include "qt/image/QtPictureLoader.h"

#include <stdexcept>

namespace sw {

std::optional<EncodedFile> PieceEncoder::Encode(const Picture& clip, const std::string& fileName,
                                                const std::string& saveFormat, i32 quality) {
    if (format_ == PieceFormat::Png) {
        return EncodePng(clip, fileName);
    }
    if (format_ == PieceFormat::Webp) {
        return EncodeWebp(clip, fileName, quality);
    }
    return imaging_.Encode(clip, fileName, saveFormat, quality);
}

// Pieces reach the disk together once the picture is cut (see CutRun): a
// sync for each of thousands of files would cost more than their encoding.
void PieceEncoder::Write(const EncodedFile& file, const std::string& fileName) {
    WriteEncodedFile(file, fileName, SyncMode::Deferred);
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
