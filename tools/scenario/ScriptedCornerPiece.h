#pragma once

#include "ports/CornerPiece.h"
#include "tools/scenario/ScriptedPlace.h"

namespace sw::scripted {

// picResize of the scripted form: a square of the stored side, hidden at start. All it
// writes is window chatter.
class ScriptedCornerPiece : public ScriptedPlace<CornerPiece> {
public:
    ScriptedCornerPiece(Transcript& transcript, const StoredControl& stored)
        : ScriptedPlace(transcript, stored, PlaceLines::Chatter), size_(stored.place.Height) {}

    float Height() const override { return size_; }
    bool Visible() const { return visible_; }
    void SetVisible(bool visible) override {
        log("Visible", FlagText(visible));
        visible_ = visible;
    }
    void Refresh() override { transcript_.Chatter("picResize.Refresh"); }

private:
    float size_;
    bool visible_ = false;
};

} // namespace sw::scripted
