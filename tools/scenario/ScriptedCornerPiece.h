#pragma once

#include "ports/CornerPiece.h"
#include "tools/scenario/ScriptedPlace.h"

namespace sw::scripted {

// picResize of the scripted form: 255 twips square, hidden at start. All it
// writes is window chatter.
class ScriptedCornerPiece : public ScriptedPlace<CornerPiece> {
public:
    ScriptedCornerPiece(Transcript& transcript, float left, float top, float size)
        : ScriptedPlace(transcript, ControlKind::PictureBox, "picResize", left, top,
                        PlaceLines::Chatter),
          size_(size) {}

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
