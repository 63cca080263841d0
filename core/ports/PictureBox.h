#pragma once

#include "common/Types.h"

namespace sw {

class Picture;

// The working copy of the picture (picActual): shows it at full size and
// keeps the strokes painted on it.
class PictureBox {
public:
    virtual ~PictureBox() = default;

    // Replaces the image by this picture; every stroke is gone and the box
    // sizes itself to the picture.
    virtual void SetPicture(const Picture& picture) = 0;
    // Paints a one-pixel stroke in picture pixels, clipped at the picture's
    // edge. False when the image to paint on cannot be made.
    virtual bool Line(int x1, int y1, int x2, int y2, Color color) = 0;
    // Whether a picture has been put into the box.
    virtual bool HasPicture() const = 0;

    // Outer size and place in twips. The place is that of the control, which
    // scrolling moves (the window layer gives it as a FormControl too).
    virtual float Width() const = 0;
    virtual float Height() const = 0;
    virtual float Left() const = 0;
    virtual float Top() const = 0;
};

} // namespace sw
