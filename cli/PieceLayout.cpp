#include "PieceLayout.h"

#include "export/SectionArea.h"

namespace sw {

PieceLayout LayOutPieces(const CutPlan& plan, i32 pictureWidth, i32 pictureHeight) {
    PieceLayout layout;
    for (const SectionRect& section : plan.Sections) {
        SectionRect inside = PartInsidePicture(section, pictureWidth, pictureHeight);
        if (!HasArea(inside)) {
            inside.Width = std::max(inside.Width, 0);
            inside.Height = std::max(inside.Height, 0);
        }
        layout.pieces.push_back(inside);
    }
    // The sections of one column share their edges, and so do those of one row.
    for (std::size_t c = 0; c < static_cast<std::size_t>(plan.Columns); ++c) {
        layout.columnWidths.push_back(layout.pieces[c].Width);
    }
    for (std::size_t i = 0; i < layout.pieces.size(); i += static_cast<std::size_t>(plan.Columns)) {
        layout.rowHeights.push_back(layout.pieces[i].Height);
    }
    return layout;
}

} // namespace sw
