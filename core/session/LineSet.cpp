#include "session/LineSet.h"

#include "common/Numbers.h"
#include "ports/PictureBox.h"
#include "session/SessionState.h"

namespace sw {

LineKind KindOf(SessionState& s, Direction direction) {
    if (direction == Direction::Horizontal) {
        return {s.hLines, s.hLineCount, s.hDivided, "H"};
    }
    return {s.vLines, s.vLineCount, s.vDivided, "V"};
}

bool AddLine(LineKind kind, i16 position) {
    const auto count = CheckedAdd(kind.count, 1);
    if (!count) {
        return false;
    }
    kind.count = *count;
    kind.lines.ReDimPreserve(kind.count);
    kind.lines(kind.count) = position;
    return true;
}

bool PaintLine(PictureBox& box, Direction direction, i16 position, Color color) {
    // The far end is the size in twips used as a pixel: past the edge, so the
    // stroke spans the picture whatever its size.
    if (direction == Direction::Horizontal) {
        return box.Line(0, position, static_cast<int>(box.Width()), position, color);
    }
    return box.Line(position, 0, position, static_cast<int>(box.Height()), color);
}

} // namespace sw
