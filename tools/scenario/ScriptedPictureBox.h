#pragma once

#include "imaging/Picture.h"
#include "ports/PictureBox.h"
#include "tools/scenario/ScriptedPlace.h"
#include "window/StoredLayout.h"

namespace sw::scripted {

// picActual without a screen: it keeps the picture's size and its place on
// the form, and logs strokes and moves.
class ScriptedPictureBox : public PictureBox, public ScriptedControl {
public:
    explicit ScriptedPictureBox(Transcript& transcript)
        : ScriptedControl(transcript, StoredLayout::picActual) {}

    void SetPicture(const Picture& picture) override;
    bool Line(int x1, int y1, int x2, int y2, Color color) override;
    bool HasPicture() const override { return hasPicture_; }
    float Width() const override { return width_; }
    float Height() const override { return height_; }
    float Left() const override { return ScriptedControl::Left(); }
    float Top() const override { return ScriptedControl::Top(); }

    // A size in twips that no picture of whole pixels gives, for tests.
    void SetTwipSize(float width, float height) {
        width_ = width;
        height_ = height;
    }

    // The n-th stroke from now reports that its image cannot be made
    // (script: "fail stroke N").
    void FailStroke(int n) { strokesUntilFailure_ = n; }

private:
    // The stored layout's size until a picture sizes the box.
    float width_ = StoredLayout::picActual.place.Width;
    float height_ = StoredLayout::picActual.place.Height;
    bool hasPicture_ = false;
    int strokesUntilFailure_ = 0;
};

} // namespace sw::scripted
