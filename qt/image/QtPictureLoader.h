#pragma once

#include "imaging/PictureLimits.h"
#include "ports/PictureLoader.h"

#include <cstdint>

namespace sw {

// Decodes BMP, JPG and GIF files (the first frame of an animation): every
// BMP by the project's own reader and JPG files by TurboJPEG, straight into
// the picture, the rest with Qt's image readers. A file goes by its contents,
// whatever its name ends in. The size is read from the header first: a picture larger
// than the program can handle is refused before any pixel memory is taken.
// Works without a QGuiApplication.
class QtPictureLoader : public PictureLoader {
public:
    // The limits of PictureLimits.h, under the names other code knows.
    static constexpr int kMaxSide = kMaxPictureSide;
    static constexpr std::int64_t kMaxPixels = kMaxPicturePixels;

    LoadedPicture LoadPicture(const std::string& path) override;
};

} // namespace sw
