#include "PictureSize.h"

#include "qt/image/QtPictureLoader.h"

#include <QImageReader>
#include <QString>

namespace sw {

std::variant<PixelSize, std::string> PictureSizeOf(const std::string& path) {
    QImageReader reader(QString::fromStdString(path));
    const QSize size = reader.size();
    const bool plausible = size.isValid() && !size.isEmpty() &&
                           size.width() <= QtPictureLoader::kMaxSide &&
                           size.height() <= QtPictureLoader::kMaxSide;
    if (plausible) {
        return PixelSize{size.width(), size.height()};
    }
    // The loader knows why a file will not open; asking it costs a decode
    // only on this road.
    QtPictureLoader loader;
    const LoadedPicture loaded = loader.LoadPicture(path);
    if (!loaded.ok()) {
        return loaded.error;
    }
    return PixelSize{loaded.picture.Width(), loaded.picture.Height()};
}

} // namespace sw
