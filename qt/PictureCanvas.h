#pragma once

#include "ports/PictureBox.h"

#include <QImage>
#include <QWidget>
#include <functional>

namespace sw::qt {

// picActual: shows the working copy of the picture at full size and keeps
// the strokes painted on it in its own image, so they survive repaints.
class PictureCanvas : public QWidget, public PictureBox {
public:
    explicit PictureCanvas(QWidget* parent);

    void SetPicture(const Picture& picture) override;
    bool Line(int x1, int y1, int x2, int y2, Color color) override;
    float Width() const override;
    float Height() const override;
    float Left() const override;
    float Top() const override;

    std::function<void(float x, float y)> onMouseMove;
    std::function<void()> onClick;
    // The box has taken a new picture's size.
    std::function<void()> onSized;

    const QImage& Image() const { return image_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QImage image_;
    // The second press of a double click is no click.
    bool inDoubleClick_ = false;
};

} // namespace sw::qt
