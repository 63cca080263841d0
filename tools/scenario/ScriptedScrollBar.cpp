#include "tools/scenario/ScriptedScrollBar.h"

#include <algorithm>

namespace sw::scripted {

ScriptedScrollBar::ScriptedScrollBar(Transcript& transcript, const StoredControl& stored)
    : ScriptedPlace(transcript, stored, PlaceLines::Chatter), width_(stored.place.Width),
      height_(stored.place.Height) {}

void ScriptedScrollBar::SetWidth(float width) {
    log("Width", FormatSingle(width));
    width_ = width;
}

void ScriptedScrollBar::SetHeight(float height) {
    log("Height", FormatSingle(height));
    height_ = height;
}

void ScriptedScrollBar::SetVisible(bool visible) {
    log("Visible", FlagText(visible));
    visible_ = visible;
}

// A Max below Min leaves the bar no room: its value stays at Min.
i32 ScriptedScrollBar::clamped(i32 value) const {
    return std::clamp(value, min_, std::max(min_, max_));
}

void ScriptedScrollBar::raise(const char* event, const std::function<void()>& handler) {
    transcript_.Line("raise " + Name() + "_" + event);
    if (handler) {
        handler();
    }
}

void ScriptedScrollBar::moveTo(i32 value) {
    const i32 before = value_;
    value_ = clamped(value);
    if (value_ != before) {
        raise("Change", onChange);
    }
}

void ScriptedScrollBar::SetMin(i32 value) {
    const Transcript::ChatterScope chatter(transcript_);
    log("Min", std::to_string(value));
    min_ = value;
    moveTo(value_);
}

void ScriptedScrollBar::SetMax(i32 value) {
    const Transcript::ChatterScope chatter(transcript_);
    log("Max", std::to_string(value));
    max_ = value;
    moveTo(value_);
}

void ScriptedScrollBar::SetSmallChange(i32 value) {
    log("SmallChange", std::to_string(value));
    smallChange_ = value;
}

void ScriptedScrollBar::SetLargeChange(i32 value) {
    log("LargeChange", std::to_string(value));
    largeChange_ = value;
}

void ScriptedScrollBar::SetValue(i32 value) {
    const Transcript::ChatterScope chatter(transcript_);
    log("Value", std::to_string(value));
    moveTo(value);
}

void ScriptedScrollBar::UserScroll(i32 value) {
    transcript_.Line("user scroll " + Name() + " " + std::to_string(value));
    moveTo(value);
}

void ScriptedScrollBar::UserDrag(const std::vector<i32>& values) {
    transcript_.Line("user drag " + Name());
    const i32 start = value_;
    for (const i32 value : values) {
        value_ = clamped(value);
        raise("Scroll", onScroll);
    }
    if (value_ != start) {
        raise("Change", onChange);
    }
}

} // namespace sw::scripted
