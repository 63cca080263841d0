#pragma once

#include "session/LineSet.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sw {

struct Session;

// The number of sections an answer asks for, or why it is refused: the
// refusal's text goes into a box titled "Sectioning Error".
struct SectionCount {
    i16 sections = 0;
    std::optional<std::string> refusal;
};

// Validates an answer for a division of a picture `sizeInTwips` high
// (horizontal) or wide (vertical), as the input box of the division does.
SectionCount CountSections(std::string_view answer, Direction direction, float sizeInTwips);

// Places n - 1 lines that divide the picture into n equal sections.
void DivideEqually(Session& session, Direction direction);

// The positions of the lines for `sections` sections of `sizeInTwips` (all
// single precision, from the running sum). Give it only a count CountSections
// accepted for the same size: the refusal of sections below one pixel is
// there alone.
std::vector<i16> EqualPositions(float sizeInTwips, i16 sections);

} // namespace sw
