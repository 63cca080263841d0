#pragma once

#include "common/OneBasedArray.h"

#include <string>

namespace sw {

// The HTML cell texts of one run; entry n belongs to the section numbered n.
using SectionCells = OneBasedArray<std::string>;

} // namespace sw
