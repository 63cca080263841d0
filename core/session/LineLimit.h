#pragma once

#include "session/LineSet.h"

namespace sw {

struct Session;

inline constexpr int kMostLinesOfAKind = 32767;

// Whether one more line of this direction fits the 16-bit counts and the
// log; when it does not, the user is told and the answer is false.
bool RoomForLine(Session& session, Direction direction);

} // namespace sw
