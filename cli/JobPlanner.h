#pragma once

#include "CutOptions.h"
#include "CutPlanner.h"
#include "PictureJob.h"

#include <variant>

namespace sw {

// Plans the cut of one picture of the run: its size from the header, its
// lines, its plan, its folder (a sub-folder of --out named after the picture
// when the run has several) and the files beside the pieces.
std::variant<PictureJob, PlanRefusal> PlanJob(const CutOptions& options, const std::string& picture,
                                              const ParsedLineFile& lineFile);

} // namespace sw
