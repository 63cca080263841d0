#pragma once

#include "common/Types.h"
#include "export/CutDestination.h"

namespace sw {

struct Session;

// Looks for the first numbered file of the chosen format that the run would
// replace and, if there is one, asks once whether to go on. False to stop.
bool OverwritePreCheck(Session& session, const CutDestination& destination, i16 hLineCount,
                       i16 vLineCount);

} // namespace sw
