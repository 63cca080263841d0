#include "tests/imaging/ImageMagick.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace sw::test {
namespace {

constexpr const char* kConvert = "/usr/bin/convert";

void requireImageMagick() {
    if (::access(kConvert, X_OK) != 0) {
        throw std::runtime_error(std::string(kConvert) +
                                 " is missing: install the imagemagick package");
    }
}

struct PipeCloser {
    void operator()(FILE* pipe) const { ::pclose(pipe); }
};

// Reads "P6 W H 255" and the pixels after it.
RgbImage parsePpm(const std::string& data) {
    std::istringstream in(data);
    std::string magic;
    RgbImage image;
    int maxValue = 0;
    in >> magic >> image.width >> image.height >> maxValue;
    in.get();
    if (magic != "P6" || maxValue != 255) {
        throw std::runtime_error("ImageMagick gave no 8-bit PPM");
    }
    image.rgb.resize(3 * static_cast<std::size_t>(image.width) * image.height);
    in.read(reinterpret_cast<char*>(image.rgb.data()),
            static_cast<std::streamsize>(image.rgb.size()));
    if (!in) {
        throw std::runtime_error("ImageMagick's PPM is short");
    }
    return image;
}

} // namespace

int LargestDifference(const Picture& ours, const RgbImage& theirs) {
    int largest = 0;
    for (int y = 0; y < ours.Height(); ++y) {
        for (int x = 0; x < ours.Width(); ++x) {
            const std::uint32_t bgr = ours.PixelAt(x, y);
            for (int c = 0; c < 3; ++c) {
                const int mine = static_cast<int>((bgr >> (8 * c)) & 0xFF);
                largest = std::max(largest, std::abs(mine - theirs.At(x, y)[c]));
            }
        }
    }
    return largest;
}

std::string RunCommand(const std::string& command) {
    std::unique_ptr<FILE, PipeCloser> pipe(::popen(command.c_str(), "r"));
    if (!pipe) {
        throw std::runtime_error("cannot run: " + command);
    }
    std::string output;
    std::array<char, 65536> buffer{};
    for (std::size_t n; (n = std::fread(buffer.data(), 1, buffer.size(), pipe.get())) > 0;) {
        output.append(buffer.data(), n);
    }
    const int status = ::pclose(pipe.release());
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw std::runtime_error("command failed: " + command);
    }
    return output;
}

RgbImage DecodeWithImageMagick(const std::string& path) {
    requireImageMagick();
    return parsePpm(RunCommand(std::string(kConvert) + " '" + path + "' -depth 8 ppm:-"));
}

void Convert(const std::string& arguments) {
    requireImageMagick();
    RunCommand(std::string(kConvert) + " " + arguments);
}

} // namespace sw::test
