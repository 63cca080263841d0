#pragma once

#include "ports/FormControl.h"
#include "ports/FormWindow.h"

namespace sw {

// One control of the main form as stored: the name the logic and the
// transcripts know it by, its kind, and its place and size in twips (all 0
// for a control with no place on the client area).
struct StoredControl {
    const char* name;
    ControlKind kind;
    TwipRect place;
};

} // namespace sw
