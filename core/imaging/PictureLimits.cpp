#include "imaging/PictureLimits.h"

#include "imaging/PictureProblems.h"

namespace sw {
namespace {

std::string sizeText(std::int64_t width, std::int64_t height) {
    return std::to_string(width) + " x " + std::to_string(height) + " pixels";
}

} // namespace

std::optional<std::string> PictureSizeProblem(std::int64_t width, std::int64_t height) {
    if (width <= 0 || height <= 0) {
        return kNotAPictureProblem;
    }
    if (width > kMaxPictureSide || height > kMaxPictureSide) {
        return "the picture is " + sizeText(width, height) + "; at most " +
               std::to_string(kMaxPictureSide) + " pixels in either direction can be opened";
    }
    if (width * height > kMaxPicturePixels) {
        return "the picture is " + sizeText(width, height) + ", too large to open";
    }
    return std::nullopt;
}

} // namespace sw
