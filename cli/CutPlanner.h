#pragma once

#include "CutOptions.h"
#include "export/CutPlan.h"
#include "linefile/LineFileText.h"

#include <string>
#include <variant>
#include <vector>

namespace sw {

// The section lines for one picture, in the order they were given.
struct PlannedLines {
    std::vector<i16> horizontal;
    std::vector<i16> vertical;
};

// A plan cannot be made: why, in words for a terminal.
struct PlanRefusal {
    std::string why;
};

// Whether a count of --grid leaves its direction undivided: 1, read as the
// division box reads a number, places no line where the box would refuse it.
bool LeavesUndivided(const std::string& count);

// The lines that the options put on a picture of that size: an equal
// division, tiles, the records of a line file (read beforehand), or the
// lines given.
std::variant<PlannedLines, PlanRefusal> PlanLines(const CutOptions& options, i32 width, i32 height,
                                                  const ParsedLineFile& lineFile);

// The window's plan for the lines: sorted, the grid between them and the
// picture's edges, the sections named `folder` + `base` + number + extension,
// or by the pattern when one is given.
std::variant<CutPlan, PlanRefusal> PlanPieces(const PlannedLines& lines, i32 width, i32 height,
                                              const CutDestination& destination,
                                              const std::optional<NamePattern>& pattern);

// The row and column of a section, counted from 1.
i32 RowOf(const CutPlan& plan, const SectionRect& section);
i32 ColumnOf(const CutPlan& plan, const SectionRect& section);

} // namespace sw
