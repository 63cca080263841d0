#pragma once

#include "export/CutDestination.h"

#include <optional>

namespace sw {

struct Session;

// Asks with the save dialog where the sections go and in which format, until
// the name has a known ending or the dialog is left empty. Keeps the chosen
// folder in LastSaveDir and the format in SaveFormat; nothing when the run ends here.
std::optional<CutDestination> ChooseDestination(Session& session);

} // namespace sw
