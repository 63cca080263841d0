#pragma once

#include "export/CutPlan.h"
#include "export/SectionCells.h"

namespace sw {

struct Session;

// Asks whether the finished cut should get its HTML table, remembers the
// choice in HTMLOut and produces the table as chosen. False only when the
// table file could not be written (the user has been told).
bool OfferHTML(Session& session, const CutPlan& plan, const SectionCells& cells);

// The "F" choice: the table in LastSaveDir + BaseName + ".html", or under a
// name asked for when the user will not replace that file.
bool WriteTableFile(Session& session, const CutPlan& plan, const SectionCells& cells);

// The "S" choice: the table in frmHTML, for copying.
void ShowTableOnScreen(Session& session, const SectionCells& cells, i32 columns);

} // namespace sw
