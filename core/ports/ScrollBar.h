#pragma once

#include "common/Types.h"
#include "ports/FormControl.h"

namespace sw {

// A scroll bar of the main form (hscroll, vscroll). Its value is in twips:
// how far the scrolled controls stand from their place at value 0.
//
// A write to Value that changes it raises the bar's Change event before the
// write returns; so does a write to Min or Max that pulls the value into the
// new range. A bar whose Max lies below its Min has no room to move: its value
// stays at Min, while Max reads back as written.
class ScrollBar : public FormControl {
public:
    virtual float Width() const = 0;
    virtual float Height() const = 0;
    virtual void SetWidth(float width) = 0;
    virtual void SetHeight(float height) = 0;
    virtual bool Visible() const = 0;
    virtual void SetVisible(bool visible) = 0;

    virtual i32 Min() const = 0;
    virtual i32 Max() const = 0;
    virtual i32 SmallChange() const = 0;
    virtual i32 LargeChange() const = 0;
    virtual i32 Value() const = 0;
    virtual void SetMin(i32 value) = 0;
    virtual void SetMax(i32 value) = 0;
    virtual void SetSmallChange(i32 value) = 0;
    virtual void SetLargeChange(i32 value) = 0;
    virtual void SetValue(i32 value) = 0;
};

} // namespace sw
