#pragma once

#include "ports/PictureLoader.h"

#include <string>

// The decoding of the pictures that neither the BMP reader nor the JPG reader
// takes (GIF, CMYK JPG, whatever else Qt reads), built as a module of its
// own that is loaded only when such a picture is opened: a program that opens
// a BMP or an ordinary JPG never loads Qt's image libraries, whose start
// costs more than decoding a picture of four million pixels.
namespace sw {

// The module's one entry point, looked up by this name.
inline constexpr const char* kLoadWithQtSymbol = "SlicewrightLoadWithQt";
using LoadWithQtFunction = void (*)(const std::string& path, LoadedPicture& result);

} // namespace sw
