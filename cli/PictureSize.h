#pragma once

#include <string>
#include <variant>

namespace sw {

struct PixelSize {
    int width = 0;
    int height = 0;
};

// The size of a picture from its file's header, without decoding its
// pixels, so that every picture of a run can be planned before any is cut;
// or why the picture cannot be opened, in the words the window would use.
std::variant<PixelSize, std::string> PictureSizeOf(const std::string& path);

} // namespace sw
