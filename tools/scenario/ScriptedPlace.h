#pragma once

#include "common/Numbers.h"
#include "ports/FormControl.h"
#include "tools/scenario/Transcript.h"
#include "window/StoredControl.h"

#include <string>
#include <utility>

namespace sw::scripted {

// Whether a control's writes are window chatter: those of the bars and the
// corner piece are, as only the layout places them.
enum class PlaceLines { Plain, Chatter };

// The part every scripted control of the form shares: its kind, its name and
// its place in twips, each write logged as "set NAME.Property=value".
template <typename Port> class ScriptedPlace : public Port {
public:
    ScriptedPlace(Transcript& transcript, ControlKind kind, std::string name, float left, float top,
                  PlaceLines lines = PlaceLines::Plain)
        : transcript_(transcript), kind_(kind), name_(std::move(name)), left_(left), top_(top),
          lines_(lines) {}
    // A control of the stored layout, at its stored place.
    ScriptedPlace(Transcript& transcript, const StoredControl& stored,
                  PlaceLines lines = PlaceLines::Plain)
        : ScriptedPlace(transcript, stored.kind, stored.name, stored.place.Left, stored.place.Top,
                        lines) {}

    ControlKind Kind() const override { return kind_; }
    std::string Name() const override { return name_; }
    float Left() const override { return left_; }
    float Top() const override { return top_; }
    void SetLeft(float left) override {
        log("Left", FormatSingle(left));
        left_ = left;
    }
    void SetTop(float top) override {
        log("Top", FormatSingle(top));
        top_ = top;
    }

protected:
    void log(const std::string& property, const std::string& value) {
        const std::string line = "set " + name_ + "." + property + "=" + value;
        if (lines_ == PlaceLines::Chatter) {
            transcript_.Chatter(line);
        } else {
            transcript_.Line(line);
        }
    }
    Transcript& transcript_;

private:
    ControlKind kind_;
    std::string name_;
    float left_;
    float top_;
    PlaceLines lines_;
};

// A control that scrolling may move and nothing else touches: a label, the
// toolbar, and the controls that have no place on the client area at all.
using ScriptedControl = ScriptedPlace<FormControl>;

} // namespace sw::scripted
