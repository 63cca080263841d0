#include "session/SectionLines.h"

#include "ports/Controls.h"
#include "session/LineLimit.h"
#include "session/LineSet.h"
#include "session/PictureReload.h"
#include "session/Session.h"

namespace sw {
namespace {

Direction drawMode(Session& session) {
    // Exactly one of the two check marks is set.
    return session.ports.controls.Checked(Item::mnuHorizontalLine) ? Direction::Horizontal
                                                                   : Direction::Vertical;
}

void takeLastLine(SessionState& s, Direction direction) {
    LineKind kind = KindOf(s, direction);
    --kind.count;
    if (kind.count == 0) {
        kind.lines.ResetToOneSlot();
        kind.divided = false;
    } else {
        kind.lines.ReDimPreserve(kind.count);
    }
}

} // namespace

void SetUndoOffered(Session& session, bool offered) {
    session.state.undoOffered = offered;
    session.ports.controls.SetEnabled(Item::mnuUndo, offered);
    session.ports.controls.SetToolbarButtonEnabled(kUndoButton, offered);
}

void AppendLineOrder(Session& session, const std::string& letter) {
    OneBasedArray<std::string>& log = session.state.lineOrder;
    const int length = log.UBound() + 1;
    log.ReDimPreserve(length);
    log(length) = letter;
}

void RecordLine(Session& session) {
    SessionState& s = session.state;
    const Direction direction = drawMode(session);
    if (!RoomForLine(session, direction)) {
        return;
    }
    const i16 position = direction == Direction::Horizontal ? s.mouseY : s.mouseX;
    PaintLine(session.ports.picActual, direction, position, s.lineColor);
    const LineKind kind = KindOf(s, direction);
    AddLine(kind, position);
    AppendLineOrder(session, kind.letter);
    s.linesDrawn = true;
    SetUndoOffered(session, true);
}

void UndoLastLine(Session& session) {
    SessionState& s = session.state;
    if (s.lineOrder.UBound() == 0 || !ReloadPicture(session)) {
        return;
    }
    const std::string last = s.lineOrder(s.lineOrder.UBound());
    takeLastLine(s, last == "H" ? Direction::Horizontal : Direction::Vertical);
    s.lineOrder.ReDimPreserve(s.lineOrder.UBound() - 1);
    RedrawLines(session);
    if (s.lineOrder.UBound() == 0) {
        SetUndoOffered(session, false);
    }
}

void RedrawLines(Session& session) {
    SessionState& s = session.state;
    for (int i = 1; i <= s.hLineCount; ++i) {
        PaintLine(session.ports.picActual, Direction::Horizontal, s.hLines(i), s.lineColor);
    }
    for (int i = 1; i <= s.vLineCount; ++i) {
        PaintLine(session.ports.picActual, Direction::Vertical, s.vLines(i), s.lineColor);
    }
}

void ResetLines(Session& session) {
    SessionState& s = session.state;
    s.hLines.ResetToOneSlot();
    s.vLines.ResetToOneSlot();
    s.hLineCount = 0;
    s.vLineCount = 0;
    s.hDivided = false;
    s.vDivided = false;
    s.linesDrawn = false;
    s.lineOrder.Erase();
    SetUndoOffered(session, false);
}

void ClearLines(Session& session) {
    const BoxResult answer =
        session.ports.boxes.Show({"Clear Verification", "Clear Lines drawn on picture?",
                                  BoxIcon::Question, BoxButtons::YesNo, BoxResult::Yes});
    if (answer != BoxResult::Yes || !ReloadPicture(session)) {
        return;
    }
    ResetLines(session);
}

} // namespace sw
