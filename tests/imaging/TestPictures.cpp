#include "tests/imaging/TestPictures.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <vector>

namespace sw::test {
namespace {

std::uint8_t channel(double value) {
    return static_cast<std::uint8_t>(std::lround(std::fmin(255.0, std::fmax(0.0, value))));
}

void paintPixel(std::uint8_t* bgr, int x, int y, int width, int height) {
    const double u = static_cast<double>(x) / width;
    const double v = static_cast<double>(y) / height;
    const bool fine = (x / 2 + y / 2) % 2 == 0 && u > 0.7 && v > 0.7;
    const bool edge = std::abs(x - width / 3) < 2 || std::abs(y - height / 2) < 2;
    const double detail = fine ? 30.0 : (edge ? -60.0 : 0.0);
    bgr[0] = channel(200.0 * v + 40.0 * std::sin(u * 6.0) + detail);
    bgr[1] = channel(100.0 + 80.0 * std::cos(u * 3.0 + v * 2.0) + detail);
    bgr[2] = channel(230.0 * u + detail);
}

} // namespace

Picture PhotoLikePicture(int width, int height) {
    const std::size_t stride = Picture::Stride(width);
    std::vector<std::uint8_t> bytes(stride * static_cast<std::size_t>(height), 0);
    for (int y = 0; y < height; ++y) {
        std::uint8_t* row = bytes.data() + stride * static_cast<std::size_t>(height - 1 - y);
        for (int x = 0; x < width; ++x) {
            paintPixel(row + 3 * x, x, y, width, height);
        }
    }
    return Picture::FromBottomUpBgr(width, height, std::move(bytes));
}

ScratchFolder::ScratchFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "sw-imaging-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("cannot make a scratch folder");
    }
    path_ = pattern;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

} // namespace sw::test
