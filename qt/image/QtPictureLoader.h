#pragma once

#include "imaging/PictureLimits.h"
#include "ports/PictureLoader.h"

namespace sw {

// Decodes BMP, JPG and GIF files (the first frame of an animation): every
// BMP by the project's own reader and JPG files by libjpeg-turbo, straight into
// the picture, the rest with Qt's image readers. A file goes by its contents,
// whatever its name ends in, and is opened once: the checks and the decoder
// read the same file even if another program removes or replaces it
// meanwhile. The size is read from the header first: a picture larger than
// the program can handle is refused before any pixel memory is taken.
// Works without a QGuiApplication.
class QtPictureLoader : public PictureLoader {
public:
    // The limit of PictureLimits.h, under the name the command line knows.
    static constexpr int kMaxSide = kMaxPictureSide;

    LoadedPicture LoadPicture(const std::string& path) override;
};

} // namespace sw
