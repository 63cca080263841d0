#pragma once

#include "imaging/ClipContainer.h"
#include "ports/Ports.h"
#include "session/SessionState.h"

namespace sw {

// The one session of the process: its state, the clean copy of the picture
// from which sections are cut, and the ports to the outside.
struct Session {
    explicit Session(Ports& outside) : ports(outside) {}

    SessionState state;
    ClipContainer clipContainer;
    Ports& ports;
    // Threads that encode sections at once in an export; 0 means one for
    // every core. The files and messages do not depend on it.
    int exportThreads = 0;
};

} // namespace sw
