#include "qt/PictureImage.h"

#include <cstring>

namespace sw::qt {

QImage ToImage(const Picture& picture) {
    QImage image(picture.Width(), picture.Height(), QImage::Format_BGR888);
    if (image.isNull()) {
        return image;
    }
    const std::size_t rowBytes = static_cast<std::size_t>(picture.Width()) * 3;
    for (int y = 0; y < picture.Height(); ++y) {
        std::memcpy(image.scanLine(y), picture.Row(y), rowBytes);
    }
    return image;
}

} // namespace sw::qt
