#pragma once

#include <string>

namespace sw {

struct Session;

// A click on the picture: one line in the current draw mode at the pointer.
void RecordLine(Session& session);
// Takes the newest line away and repaints the rest.
void UndoLastLine(Session& session);
// Asks, then takes every line away.
void ClearLines(Session& session);
// The one reset of the line set.
void ResetLines(Session& session);
// Repaints every line in the current colour.
void RedrawLines(Session& session);
// The one way into the undo log: "H" or "V".
void AppendLineOrder(Session& session, const std::string& letter);

// Shows Undo as offered or withdrawn, on the menu and its toolbar button together.
void SetUndoOffered(Session& session, bool offered);

} // namespace sw
