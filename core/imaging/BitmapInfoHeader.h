#pragma once

#include "common/Types.h"

namespace sw {

// The size record of a 24-bit surface, with the fields and meanings of the
// Windows bitmap info header, so that a surface can describe itself the way
// a BMP file or a bitmap clipboard entry does.
struct BitmapInfoHeader {
    i32 biSize = 0;
    i32 biWidth = 0;
    // Positive: the rows are stored bottom-up.
    i32 biHeight = 0;
    i16 biPlanes = 0;
    i16 biBitCount = 0;
    i32 biCompression = 0;
    i32 biSizeImage = 0;
    i32 biXPelsPerMeter = 0;
    i32 biYPelsPerMeter = 0;
    i32 biClrUsed = 0;
    i32 biClrImportant = 0;
};

} // namespace sw
