#pragma once

#include "common/Types.h"
#include "export/SectionCells.h"

#include <string>
#include <vector>

namespace sw {

// The cell of one written section: its image by file name alone, unescaped,
// so that the table finds its images when it lies beside them.
std::string CellText(const std::string& cellName);

// The cell of a section that had no area to cut. An empty cell keeps the row
// at `Columns` cells, so every later piece stays in its column; with no
// padding and no spacing it takes no room, as the section had none.
std::string EmptyCellText();

// The table that puts the sections together again, one line per entry,
// a row of the table for each row of the grid.
std::vector<std::string> BuildTableLines(const SectionCells& cells, i32 columns);

// The lines joined, every one (the last included) closed by CR LF.
std::string TableText(const std::vector<std::string>& lines);

} // namespace sw
