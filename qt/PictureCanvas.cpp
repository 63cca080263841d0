#include "qt/PictureCanvas.h"

#include "qt/PictureImage.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace sw::qt {
namespace {

QColor colorOf(Color color) {
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
                  static_cast<int>((color >> 16) & 0xFF));
}

} // namespace

PictureCanvas::PictureCanvas(QWidget* parent) : QWidget(parent) {
    setMouseTracking(true);
    // The stored layout's size until a picture sizes the box.
    resize(209, 297);
}

void PictureCanvas::SetPicture(const Picture& picture) {
    image_ = ToImage(picture);
    resize(picture.Width(), picture.Height());
    update();
}

bool PictureCanvas::Line(int x1, int y1, int x2, int y2, Color color) {
    if (image_.isNull()) {
        return false;
    }
    QPainter painter(&image_);
    painter.setPen(QPen(colorOf(color), 1));
    painter.drawLine(x1, y1, x2, y2);
    update();
    return true;
}

float PictureCanvas::Width() const {
    return static_cast<float>(width()) * kTwipsPerPixel;
}
float PictureCanvas::Height() const {
    return static_cast<float>(height()) * kTwipsPerPixel;
}

void PictureCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawImage(0, 0, image_);
}

void PictureCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (onMouseMove) {
        // The pixel under the pointer, whatever the pointer's subpixel place.
        const QPointF at = event->position();
        onMouseMove(std::floor(static_cast<float>(at.x())), std::floor(static_cast<float>(at.y())));
    }
}

void PictureCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (inDoubleClick_) {
        inDoubleClick_ = false;
        return;
    }
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) &&
        onClick) {
        onClick();
    }
}

void PictureCanvas::mouseDoubleClickEvent(QMouseEvent*) {
    inDoubleClick_ = true;
}

} // namespace sw::qt
