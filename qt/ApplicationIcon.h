#pragma once

#include <QIcon>

namespace sw::qt {

// The program's icon for its windows, built from the rendered PNG sizes so
// that it shows without Qt's SVG plugin.
QIcon ApplicationIcon();

} // namespace sw::qt
