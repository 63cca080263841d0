// Any bytes as a BMP file: the project's own reader refuses them with a
// reason or gives a picture of the size its header claims.
#include "imaging/BmpFile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream file(std::string(reinterpret_cast<const char*>(data), size));
    const sw::BmpRead read = sw::ReadBmp(file, size);
    if (read.picture.has_value() == !read.problem.empty()) {
        std::abort();
    }
    return 0;
}
