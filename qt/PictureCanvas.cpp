#include "qt/PictureCanvas.h"

#include "qt/PictureImage.h"
#include "qt/TwipGeometry.h"

#include <QMouseEvent>
#include <QPaintEvent>
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
    resize(PixelsOf(StoredLayout::picActual.place.Width),
           PixelsOf(StoredLayout::picActual.place.Height));
}

void PictureCanvas::SetPicture(const Picture& picture) {
    picture_ = picture;
    strokes_ = QImage();
    resize(picture.Width(), picture.Height());
    update();
    if (onPictureShown) {
        onPictureShown();
    }
}

QImage PictureCanvas::Image() const {
    return strokes_.isNull() ? ToImage(picture_) : strokes_;
}

bool PictureCanvas::Line(int x1, int y1, int x2, int y2, Color color) {
    if (strokes_.isNull() && !picture_.IsEmpty()) {
        strokes_ = ToImage(picture_);
    }
    if (strokes_.isNull()) {
        return false;
    }
    QPainter painter(&strokes_);
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

void PictureCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (!strokes_.isNull()) {
        painter.drawImage(0, 0, strokes_);
        return;
    }
    // The shared pixels are stored bottom-up, which an image cannot describe:
    // each row the event asks for is drawn on its own, without a copy.
    const QRect wanted = event->rect() & QRect(0, 0, picture_.Width(), picture_.Height());
    for (int y = wanted.top(); y <= wanted.bottom(); ++y) {
        const QImage row(picture_.Row(y), picture_.Width(), 1,
                         static_cast<qsizetype>(picture_.RowPitch()), QImage::Format_BGR888);
        painter.drawImage(QPoint(wanted.left(), y), row,
                          QRect(wanted.left(), 0, wanted.width(), 1));
    }
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
