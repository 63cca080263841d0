#include "qt/image/QtPictureLoader.h"

#include "imaging/BmpFile.h"
#include "imaging/JpegReader.h"
#include "imaging/PictureLimits.h"
#include "imaging/PictureProblems.h"
#include "qt/image/HeldFile.h"
#include "qt/image/PictureFileCheck.h"
#include "qt/image/QtReaderModule.h"

#include <optional>

namespace sw {
namespace {

// Every BMP goes to the project's own reader, which takes the kinds Qt's
// reader gets wrong (16-bit and wide bit fields, OS/2 headers) and reads the
// common 24-bit kind in one go.
LoadedPicture loadBmp(const std::string& path) {
    BmpRead read = ReadBmpFile(path);
    if (!read.picture) {
        return LoadedPicture::Failed(read.problem);
    }
    LoadedPicture result;
    result.picture = std::move(*read.picture);
    return result;
}

// A JPG is decoded by libjpeg-turbo straight into the picture's rows: one copy of
// the pixels instead of Qt's 32-bit image beside the picture. The checks and
// their words are those of the general road. CMYK pictures, which the decoder
// cannot turn into blue, green and red, are left to Qt (nothing here).
std::optional<LoadedPicture> loadJpeg(const std::string& path) {
    JpegReader reader(path);
    if (!reader.HeaderRead()) {
        return LoadedPicture::Failed(kNotAPictureProblem);
    }
    if (const std::optional<std::string> problem =
            PictureSizeProblem(reader.Width(), reader.Height())) {
        return LoadedPicture::Failed(*problem);
    }
    if (const std::optional<std::string> problem = TruncationProblem(path, "jpeg")) {
        return LoadedPicture::Failed(*problem);
    }
    if (reader.FourColour()) {
        return std::nullopt;
    }
    std::string error;
    std::optional<Picture> picture = reader.Decode(error);
    if (!picture) {
        return LoadedPicture::Failed("the file is damaged: its picture cannot be decoded (" +
                                     error + ")");
    }
    LoadedPicture result;
    result.picture = std::move(*picture);
    return result;
}

} // namespace

LoadedPicture QtPictureLoader::LoadPicture(const std::string& path) {
    const HeldFile file(path);
    if (file.Problem()) {
        return LoadedPicture::Failed(*file.Problem());
    }
    const std::string& source = file.Path();
    if (IsBmpFile(source)) {
        return loadBmp(source);
    }
    if (JpegReader::IsJpeg(source)) {
        if (std::optional<LoadedPicture> loaded = loadJpeg(source)) {
            return std::move(*loaded);
        }
    }
    return LoadWithQtReaders(source);
}

} // namespace sw
