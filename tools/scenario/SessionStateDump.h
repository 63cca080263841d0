#pragma once

#include "session/SessionState.h"

#include <string>

namespace sw::scripted {

// What `dump` and `fields` print: every field, one a line: name=value, arrays as 1-based lists.
std::string DumpSessionState(const SessionState& state);

} // namespace sw::scripted
