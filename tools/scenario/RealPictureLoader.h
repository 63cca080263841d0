#pragma once

#include "ports/PictureLoader.h"

#include <memory>

namespace sw::scripted {

// The decoder the real program uses, for pictures that are real files.
std::unique_ptr<PictureLoader> MakeRealPictureLoader();

} // namespace sw::scripted
