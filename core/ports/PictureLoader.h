#pragma once

#include "imaging/Picture.h"

#include <string>
#include <utility>

namespace sw {

struct LoadedPicture {
    Picture picture;
    // Empty on success; otherwise why the file could not be read.
    std::string error;
    bool ok() const { return error.empty(); }
    // A picture that could not be read, and why.
    static LoadedPicture Failed(std::string reason) {
        LoadedPicture result;
        result.error = std::move(reason);
        return result;
    }
};

// Decodes BMP, JPG and GIF files into pictures.
class PictureLoader {
public:
    virtual ~PictureLoader() = default;
    virtual LoadedPicture LoadPicture(const std::string& path) = 0;
};

} // namespace sw
