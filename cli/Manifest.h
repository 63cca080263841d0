#pragma once

#include "PieceFormat.h"
#include "PieceLayout.h"

#include <string>

namespace sw {

// What a manifest says about the picture the pieces came from.
struct ManifestSource {
    std::string picture;
    i32 width = 0;
    i32 height = 0;
    PieceFormat format = PieceFormat::Bmp;
};

// The manifest as JSON: the picture, the rows and columns of the layout and,
// for every section in numbering order, its number, row and column (from 1),
// its rectangle inside the picture and its file (null for a section without
// area, which is not written). Paths stand as they were given; bytes that
// are no UTF-8 are replaced.
std::string ManifestText(const ManifestSource& source, const PieceLayout& layout);

} // namespace sw
