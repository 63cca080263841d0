#pragma once

#include "ports/PictureLoader.h"

#include <string>

namespace sw {

// Decodes a picture with Qt's image readers, through the module that holds
// them (QtImageReading.h), loaded at the first call. The module is looked
// for where an installed program keeps it and then in the build; when it
// cannot be loaded the picture is refused with words that say so.
LoadedPicture LoadWithQtReaders(const std::string& path);

} // namespace sw
