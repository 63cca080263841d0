// Any bytes as a picture file, under each name ending the program opens:
// the loader (its checks, then Qt's readers or the project's own BMP reader)
// refuses them with a reason or gives a picture within the size limits.
#include "qt/image/QtPictureLoader.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

// One scratch file per ending, written afresh for every input.
const std::string& scratchFolder() {
    static const std::string folder = [] {
        char name[] = "/tmp/slicewright-fuzz-picture.XXXXXX";
        if (::mkdtemp(name) == nullptr) {
            std::abort();
        }
        return std::string(name);
    }();
    return folder;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    // The first byte picks the name's ending, so that one input reaches every reader's choice.
    constexpr std::array<const char*, 3> kEndings = {".bmp", ".jpg", ".gif"};
    const std::string path = scratchFolder() + "/picture" + kEndings[data[0] % kEndings.size()];
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data + 1), static_cast<std::streamsize>(size - 1));
    const sw::LoadedPicture loaded = sw::QtPictureLoader().LoadPicture(path);
    if (loaded.ok() && (loaded.picture.Width() > sw::kMaxPictureSide ||
                        loaded.picture.Height() > sw::kMaxPictureSide)) {
        std::abort();
    }
    return 0;
}
