#pragma once

#include <QIcon>
#include <QString>
#include <initializer_list>

namespace sw::qt {

// An icon of the PNG files that the build rendered from one SVG drawing
// (cmake/RenderSvg.cmake): :/PREFIX/NAME-SIZE.png for each size, so that it
// is sharp at each of them and shows without Qt's SVG plugin.
QIcon RenderedIcon(const QString& prefix, const QString& name, std::initializer_list<int> sizes);

} // namespace sw::qt
