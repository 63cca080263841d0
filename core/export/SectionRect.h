#pragma once

#include "common/Types.h"

#include <string>

namespace sw {

// One section of the grid. Positions and sizes are pixels; they are kept in
// 32 bits because the difference of two 16-bit line positions (a line file can
// bring any) needs 17.
struct SectionRect {
    i32 Number = 0;
    i32 Left = 0;
    i32 Top = 0;
    // Zero or negative where two lines share a place or a line lies on or
    // beyond the picture's edge.
    i32 Width = 0;
    i32 Height = 0;
    std::string FileName;
    // The file name without its folder, as the HTML table refers to it.
    std::string CellName;

    bool operator==(const SectionRect&) const = default;
};

} // namespace sw
