#include "window/EditCommands.h"

#include "session/EqualDivision.h"
#include "session/SectionLines.h"

namespace sw {

void picActual_Click(Session& session) {
    RecordLine(session);
}
void mnuUndo_Click(Session& session) {
    UndoLastLine(session);
}
void mnuClear_Click(Session& session) {
    ClearLines(session);
}
void mnuDivideH_Click(Session& session) {
    DivideEqually(session, Direction::Horizontal);
}
void mnuDivideV_Click(Session& session) {
    DivideEqually(session, Direction::Vertical);
}

} // namespace sw
