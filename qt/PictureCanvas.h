#pragma once

#include "imaging/Picture.h"
#include "ports/FormControl.h"
#include "ports/PictureBox.h"
#include "qt/TwipGeometry.h"
#include "window/StoredLayout.h"

#include <QImage>
#include <QWidget>
#include <functional>

namespace sw::qt {

// picActual: shows the working copy of the picture at full size and keeps
// the strokes painted on it in its own image, so they survive repaints and
// scrolling. Until the first stroke it shows the pixels of the picture it was
// given, shared with the clean copy, so that an open picture lies in memory
// once; the first stroke makes the copy it paints on. Scrolling moves the whole widget; the
// pointer's place stays in the picture's own pixels.
class PictureCanvas : public QWidget, public PictureBox, public FormControl {
public:
    explicit PictureCanvas(QWidget* parent);

    void SetPicture(const Picture& picture) override;
    bool Line(int x1, int y1, int x2, int y2, Color color) override;
    bool HasPicture() const override { return !picture_.IsEmpty(); }
    float Width() const override;
    float Height() const override;
    float Left() const override { return place_.Left(); }
    float Top() const override { return place_.Top(); }
    void SetLeft(float left) override { place_.SetLeft(left); }
    void SetTop(float top) override { place_.SetTop(top); }
    ControlKind Kind() const override { return StoredLayout::picActual.kind; }
    std::string Name() const override { return StoredLayout::picActual.name; }

    std::function<void(float x, float y)> onMouseMove;
    std::function<void()> onClick;
    // A new picture is in the box.
    std::function<void()> onPictureShown;

    // What the box shows, strokes included.
    QImage Image() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    Picture picture_;
    // The working copy with its strokes, null until the first stroke.
    QImage strokes_;
    TwipGeometry place_{this};
    // The second press of a double click is no click.
    bool inDoubleClick_ = false;
};

} // namespace sw::qt
