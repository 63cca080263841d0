#pragma once

#include "session/LineSet.h"

#include <vector>

namespace sw {

struct Session;

// Places n - 1 lines that divide the picture into n equal sections.
void DivideEqually(Session& session, Direction direction);

// The positions of the lines for `sections` sections of `sizeInTwips`
// (all single precision, from the running sum); empty when a section would
// be smaller than one pixel.
std::vector<i16> EqualPositions(float sizeInTwips, i16 sections);

} // namespace sw
