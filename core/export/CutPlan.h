#pragma once

#include "export/CutDestination.h"
#include "export/SectionRect.h"

#include <vector>

namespace sw {

// The outcome of planning a cut: where the files go, how many sections make
// one row, and every section in numbering order (row by row from the top).
struct CutPlan {
    CutDestination Destination;
    i32 Columns = 1;
    std::vector<SectionRect> Sections;
};

} // namespace sw
