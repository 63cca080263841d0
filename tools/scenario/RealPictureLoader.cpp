#include "tools/scenario/RealPictureLoader.h"

#include "qt/image/QtPictureLoader.h"

namespace sw::scripted {

std::unique_ptr<PictureLoader> MakeRealPictureLoader() {
    return std::make_unique<QtPictureLoader>();
}

} // namespace sw::scripted
