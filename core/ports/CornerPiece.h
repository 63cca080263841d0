#pragma once

#include "ports/FormControl.h"

namespace sw {

// picResize: the little square that fills the corner where the two scroll
// bars meet.
class CornerPiece : public FormControl {
public:
    virtual float Height() const = 0;
    virtual void SetVisible(bool visible) = 0;
    virtual void Refresh() = 0;
};

} // namespace sw
