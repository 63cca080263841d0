#pragma once

#include "imaging/Picture.h"

#include <string>

namespace sw::test {

// A picture with what photographs have: smooth gradients in every channel
// and some fine detail (a fine checker and a few sharp edges).
Picture PhotoLikePicture(int width, int height);

// A folder of its own below the system's temporary folder, removed at the end.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    std::string Path(const std::string& name) const { return path_ + "/" + name; }
    const std::string& Path() const { return path_; }

private:
    std::string path_;
};

} // namespace sw::test
