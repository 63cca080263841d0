#include "export/SectionGrid.h"

#include "common/Numbers.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace sw {
namespace {

// Where the bands of one direction start (0, then the lines in order), and
// the far edge of the picture in twips, where the last band ends.
struct Edges {
    std::vector<i32> starts;
    float farTwips;
};

Edges edgesOf(GridLines lines, float farTwips) {
    Edges edges{{0}, farTwips};
    for (int i = 1; i <= lines.count; ++i) {
        edges.starts.push_back(lines.lines(i));
    }
    return edges;
}

// The last section's size is taken from the twips first and rounded only
// then, half to even. Out of 16-bit range it saturates, which only a picture
// beyond the data model can bring.
i32 lastSize(float farTwips, i32 start) {
    const double size = static_cast<double>(farTwips) / kTwipsPerPixel - start;
    if (const std::optional<i16> rounded = RoundToI16(size)) {
        return *rounded;
    }
    return size < 0 ? std::numeric_limits<i16>::min() : std::numeric_limits<i16>::max();
}

// Start and size of band `index` (from 0) between the edges.
std::pair<i32, i32> band(const Edges& edges, std::size_t index) {
    const i32 start = edges.starts[index];
    if (index + 1 == edges.starts.size()) {
        return {start, lastSize(edges.farTwips, start)};
    }
    return {start, edges.starts[index + 1] - start};
}

SectionRect sectionAt(const CutDestination& destination, i32 number, std::pair<i32, i32> column,
                      std::pair<i32, i32> row) {
    const std::string fileName = SectionFileName(destination, number);
    const std::size_t folderLength = destination.Folder.size();
    return {number,
            column.first,
            row.first,
            column.second,
            row.second,
            fileName,
            fileName.substr(folderLength)};
}

} // namespace

void SortLines(OneBasedArray<i16>& lines, i16 count) {
    // The stored arrays themselves are sorted, not a copy: a later Undo takes
    // off the largest position, and a saved line file holds the sorted order.
    std::vector<i16>& items = lines.items();
    std::sort(items.begin(), items.begin() + std::clamp<int>(count, 0, lines.UBound()));
}

std::string SectionFileName(const CutDestination& destination, i32 number) {
    return destination.Folder + destination.BaseName + std::to_string(number) +
           destination.Extension;
}

CutPlan BuildSectionGrid(GridLines horizontal, GridLines vertical, float pictureWidthTwips,
                         float pictureHeightTwips, const CutDestination& destination) {
    const Edges rows = edgesOf(horizontal, pictureHeightTwips);
    const Edges columns = edgesOf(vertical, pictureWidthTwips);
    CutPlan plan{destination, static_cast<i32>(columns.starts.size()), {}};
    plan.Sections.reserve(rows.starts.size() * columns.starts.size());
    i32 number = 0;
    for (std::size_t r = 0; r < rows.starts.size(); ++r) {
        for (std::size_t c = 0; c < columns.starts.size(); ++c) {
            plan.Sections.push_back(
                sectionAt(destination, ++number, band(columns, c), band(rows, r)));
        }
    }
    return plan;
}

} // namespace sw
