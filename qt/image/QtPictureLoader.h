#pragma once

#include "imaging/PictureLimits.h"
#include "ports/PictureLoader.h"

#include <cstdint>

namespace sw {

// Decodes BMP, JPG and GIF files (the first frame of an animation): plain
// 24-bit BMP files and JPG files straight into the picture, the rest with
// Qt's image readers. The size is read from the header first: a picture larger
// than the program can handle is refused before any pixel memory is taken.
// Works without a QGuiApplication.
class QtPictureLoader : public PictureLoader {
public:
    static constexpr int kMaxSide = kMaxPictureSide;
    static constexpr std::int64_t kMaxPixels = kMaxPicturePixels;

    LoadedPicture LoadPicture(const std::string& path) override;
};

} // namespace sw
