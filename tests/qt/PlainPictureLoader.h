#pragma once

#include "imaging/Picture.h"
#include "ports/PictureLoader.h"

#include <functional>

namespace sw::test {

// Every file is a white picture of the size last asked for; no file is read.
// `fail`, when set, runs first, so that a test can make the loading throw.
class PlainPictureLoader : public PictureLoader {
public:
    explicit PlainPictureLoader(int pictureWidth = 40, int pictureHeight = 30)
        : width(pictureWidth), height(pictureHeight) {}

    LoadedPicture LoadPicture(const std::string&) override {
        if (fail) {
            fail();
        }
        return {Picture::Filled(width, height, 0x00FFFFFF), {}};
    }

    int width;
    int height;
    std::function<void()> fail;
};

} // namespace sw::test
