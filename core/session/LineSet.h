#pragma once

#include "common/OneBasedArray.h"
#include "common/Types.h"

namespace sw {

struct SessionState;

// The two directions of a section line and where each keeps its data.
enum class Direction { Horizontal, Vertical };

struct LineKind {
    OneBasedArray<i16>& lines;
    i16& count;
    bool& divided;
    const char* letter;
};

LineKind KindOf(SessionState& state, Direction direction);

// Appends a position to a kind's array; false when the kind is full.
bool AddLine(LineKind kind, i16 position);

// A stroke across the whole picture at `position`; false when the image to
// paint on cannot be made.
class PictureBox;
bool PaintLine(PictureBox& box, Direction direction, i16 position, Color color);

} // namespace sw
