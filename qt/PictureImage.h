#pragma once

#include "imaging/Picture.h"

#include <QImage>

namespace sw::qt {

// The picture as a Qt image for the screen; a null image when there is not
// enough memory for it.
QImage ToImage(const Picture& picture);

} // namespace sw::qt
