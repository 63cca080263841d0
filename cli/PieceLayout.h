#pragma once

#include "export/CutPlan.h"

#include <vector>

namespace sw {

// The pieces of a plan as they lie on the picture: every section cut to the
// picture's edges (a section without area keeps a size of 0), and the width
// of every column and the height of every row that the pieces rejoin in.
struct PieceLayout {
    std::vector<SectionRect> pieces;
    std::vector<i32> columnWidths;
    std::vector<i32> rowHeights;
};

PieceLayout LayOutPieces(const CutPlan& plan, i32 pictureWidth, i32 pictureHeight);

} // namespace sw
