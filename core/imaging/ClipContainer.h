#pragma once

#include "common/Types.h"
#include "imaging/Picture.h"

namespace sw {

// The clean copy of the opened picture, from which sections are cut: set the
// clip rectangle, then read Clip.
class ClipContainer {
public:
    Picture picture;
    i16 ClipX = 0;
    i16 ClipY = 0;
    i16 ClipWidth = 0;
    i16 ClipHeight = 0;

    // The clip rectangle as a new picture; one with no area or reaching outside
    // the picture throws (see Picture::Clip).
    Picture Clip() const;
};

} // namespace sw
