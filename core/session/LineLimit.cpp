#include "session/LineLimit.h"

#include "session/Session.h"

namespace sw {

bool RoomForLine(Session& session, Direction direction) {
    SessionState& s = session.state;
    const int count = KindOf(s, direction).count;
    if (count < kMostLinesOfAKind && s.lineOrder.UBound() < kMostLinesOfAKind) {
        return true;
    }
    session.ports.boxes.Show({"Too Many Lines",
                              "No more lines can be added: 32767 lines of a kind is the most "
                              "a picture can hold.",
                              BoxIcon::Exclamation, BoxButtons::OK, BoxResult::OK});
    return false;
}

} // namespace sw
