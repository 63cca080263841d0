#pragma once

#include "ports/FormWindow.h"
#include "ports/ScrollBar.h"
#include "tools/scenario/ScriptedPlace.h"

#include <functional>
#include <vector>

namespace sw::scripted {

// A scroll bar of the scripted form. It starts hidden, with the range 0 to
// 32767 and steps of 1, as a fresh bar has them; every write is logged, and a
// value that changes raises onChange before the write returns. What the
// logic writes into a bar, and the Change it raises so, is window chatter;
// what the user does with it is not.
class ScriptedScrollBar : public ScriptedPlace<ScrollBar> {
public:
    ScriptedScrollBar(Transcript& transcript, const StoredControl& stored);

    float Width() const override { return width_; }
    float Height() const override { return height_; }
    void SetWidth(float width) override;
    void SetHeight(float height) override;
    bool Visible() const override { return visible_; }
    void SetVisible(bool visible) override;

    i32 Min() const override { return min_; }
    i32 Max() const override { return max_; }
    i32 SmallChange() const override { return smallChange_; }
    i32 LargeChange() const override { return largeChange_; }
    i32 Value() const override { return value_; }
    void SetMin(i32 value) override;
    void SetMax(i32 value) override;
    void SetSmallChange(i32 value) override;
    void SetLargeChange(i32 value) override;
    void SetValue(i32 value) override;

    // The user clicks the bar or lets go of its thumb at this value.
    void UserScroll(i32 value);
    // The user drags the thumb through these values and lets go.
    void UserDrag(const std::vector<i32>& values);

    // The bar's events, raised into the logic.
    std::function<void()> onChange;
    std::function<void()> onScroll;

private:
    i32 clamped(i32 value) const;
    // Moves the value, raising Change when it moved.
    void moveTo(i32 value);
    void raise(const char* event, const std::function<void()>& handler);
    float width_;
    float height_;
    bool visible_ = false;
    i32 min_ = 0;
    i32 max_ = 32767;
    i32 smallChange_ = 1;
    i32 largeChange_ = 1;
    i32 value_ = 0;
};

} // namespace sw::scripted
