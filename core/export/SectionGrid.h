#pragma once

#include "common/OneBasedArray.h"
#include "export/CutPlan.h"

#include <cstdint>

namespace sw {

// Section numbers have at most seven digits; a grid beyond that (only a
// line file or equal division on a huge picture can make one) would also
// take more memory and files than any user wants from one command.
inline constexpr std::int64_t kMostSections = 9'999'999;

// Sorts the first `count` entries of a stored line array in place, ascending.
void SortLines(OneBasedArray<i16>& lines, i16 count);

// `Folder` + `BaseName` + the number (no sign, no leading zeros) + `Extension`.
std::string SectionFileName(const CutDestination& destination, i32 number);

// The lines of one direction, sorted, as the grid reads them.
struct GridLines {
    const OneBasedArray<i16>& lines;
    i16 count;
};

// The grid of sections between the sorted lines and the picture's edges. The
// last column and row take their size from picActual's size in twips.
CutPlan BuildSectionGrid(GridLines horizontal, GridLines vertical, float pictureWidthTwips,
                         float pictureHeightTwips, const CutDestination& destination);

} // namespace sw
