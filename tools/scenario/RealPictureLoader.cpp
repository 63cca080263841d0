#include "tools/scenario/RealPictureLoader.h"

namespace sw::scripted {

// Interim: real files are decoded once the Qt image reader is wired in.
std::unique_ptr<PictureLoader> MakeRealPictureLoader() {
    return nullptr;
}

} // namespace sw::scripted
