// make_bench_picture WIDTH HEIGHT OUT.jpg|OUT.bmp: a photo-like picture for the
// benchmarks, the same on every run. Smooth gradients with edges (the test
// kit's picture) and a grain of fixed pseudo-random noise, so that the JPG
// (quality 90, 4:2:0) is about as large as a photograph of that size.
#include "imaging/BmpWriter.h"
#include "imaging/JpegWriter.h"
#include "imaging/cDIBSection.h"
#include "tests/imaging/TestPictures.h"

#include <algorithm>
#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace sw;

Picture withGrain(const Picture& smooth) {
    const int width = smooth.Width();
    const int height = smooth.Height();
    const std::size_t stride = Picture::Stride(width);
    std::vector<std::uint8_t> bytes(stride * static_cast<std::size_t>(height), 0);
    std::uint32_t state = 12345;
    for (int y = 0; y < height; ++y) {
        std::uint8_t* row = bytes.data() + stride * static_cast<std::size_t>(height - 1 - y);
        const std::uint8_t* from = smooth.Row(y);
        for (int x = 0; x < 3 * width; ++x) {
            state = state * 1664525u + 1013904223u;
            const int grain = static_cast<int>(state >> 28) - 8;
            row[x] = static_cast<std::uint8_t>(std::clamp(from[x] + grain, 0, 255));
        }
    }
    return Picture::FromBottomUpBgr(width, height, std::move(bytes));
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: make_bench_picture WIDTH HEIGHT OUT.jpg|OUT.bmp\n";
        return 2;
    }
    const Picture picture =
        withGrain(test::PhotoLikePicture(std::stoi(argv[1]), std::stoi(argv[2])));
    const std::string out = argv[3];
    try {
        if (out.ends_with(".bmp")) {
            SavePicture(picture, out);
            return 0;
        }
        cDIBSection surface;
        surface.CreateFromPicture(picture);
        WriteJPGFile(surface, out, 90);
    } catch (const std::exception& error) {
        std::cerr << "make_bench_picture: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
