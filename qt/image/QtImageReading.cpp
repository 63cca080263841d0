#include "qt/image/QtImageReading.h"

#include "imaging/PictureLimits.h"
#include "imaging/PictureProblems.h"
#include "qt/image/PictureFileCheck.h"

#include <QImage>
#include <QImageReader>
#include <cstring>
#include <optional>
#include <type_traits>
#include <vector>

namespace sw {
namespace {

std::optional<std::string> sizeProblem(QSize size) {
    if (!size.isValid() || size.isEmpty()) {
        return kNotAPictureProblem;
    }
    return PictureSizeProblem(size.width(), size.height());
}

// Qt refuses to allocate images beyond a global limit; it must admit every
// picture that passed the size check above, and no more.
void allowPicturesUpToTheBudget() {
    constexpr std::int64_t megabytes = kMaxPicturePixels * 4 / (1024 * 1024) + 1;
    QImageReader::setAllocationLimit(static_cast<int>(megabytes));
}

// Bottom-up rows of blue, green and red, padded to 4 bytes.
// The decoded image is converted in place where Qt can, to keep the peak of
// memory low on large pictures.
Picture toPicture(QImage bgr) {
    bgr.convertTo(QImage::Format_BGR888);
    const int width = bgr.width();
    const int height = bgr.height();
    const std::size_t stride = Picture::Stride(width);
    std::vector<std::uint8_t> bytes(stride * static_cast<std::size_t>(height), 0);
    for (int y = 0; y < height; ++y) {
        std::uint8_t* target = bytes.data() + stride * static_cast<std::size_t>(height - 1 - y);
        std::memcpy(target, bgr.constScanLine(y), 3 * static_cast<std::size_t>(width));
    }
    return Picture::FromBottomUpBgr(width, height, std::move(bytes));
}

LoadedPicture loadWithQt(const std::string& path) {
    allowPicturesUpToTheBudget();
    QImageReader reader(QString::fromStdString(path));
    reader.setAutoTransform(false);
    if (const std::optional<std::string> problem = sizeProblem(reader.size())) {
        return LoadedPicture::Failed(*problem);
    }
    if (const std::optional<std::pair<int, int>> screen = GifScreenSize(path)) {
        if (const std::optional<std::string> problem =
                PictureSizeProblem(screen->first, screen->second)) {
            return LoadedPicture::Failed(*problem);
        }
    }
    if (const std::optional<std::string> problem =
            TruncationProblem(path, reader.format().toStdString())) {
        return LoadedPicture::Failed(*problem);
    }
    QImage decoded = reader.read();
    if (decoded.isNull()) {
        return LoadedPicture::Failed("the file is damaged: its picture cannot be decoded (" +
                                     reader.errorString().toStdString() + ")");
    }
    // The last guard: no reader may give more than its header said and the checks let in.
    if (const std::optional<std::string> problem = sizeProblem(decoded.size())) {
        return LoadedPicture::Failed(*problem);
    }
    LoadedPicture result;
    result.picture = toPicture(std::move(decoded));
    return result;
}

} // namespace
} // namespace sw

// GIF files, CMYK JPG files and whatever else Qt's readers recognise.
extern "C" __attribute__((visibility("default"))) void
SlicewrightLoadWithQt(const std::string& path, sw::LoadedPicture& result) {
    result = sw::loadWithQt(path);
}

static_assert(std::is_same_v<decltype(&SlicewrightLoadWithQt), sw::LoadWithQtFunction>,
              "the entry point has the type its callers look it up as");
