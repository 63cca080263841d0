#pragma once

#include "export/CutPlan.h"
#include "imaging/Picture.h"

#include <string>

namespace sw::bench {

// The lower bounds of an export: the same rectangles written straight from
// one bottom-up BGR buffer, with no plan, no clip object and no surface copy.
// Each answers the number of files written.
int BareTurboJpeg(const Picture& picture, const CutPlan& plan, int quality);
int BareBmp(const Picture& picture, const CutPlan& plan);

} // namespace sw::bench
