#pragma once

#include <QIcon>

namespace sw::qt {

// The image at `place` (1 to 9) of the toolbar's image list, sharp at a
// device pixel ratio of 1 and 2; a null icon for any other place.
QIcon ToolbarImage(int place);

// The size the toolbar shows its images at, in device-independent pixels.
constexpr int kToolbarImageSize = 16;

} // namespace sw::qt
