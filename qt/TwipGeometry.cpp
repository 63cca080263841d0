#include "qt/TwipGeometry.h"

#include "common/Numbers.h"
#include "common/Types.h"

#include <QWidget>
#include <algorithm>

namespace sw::qt {

int PixelsOf(float twips) {
    return static_cast<int>(RoundHalfEven(twips / kTwipsPerPixel));
}

TwipGeometry::TwipGeometry(QWidget* widget)
    : widget_(widget), left_(static_cast<float>(widget->x()) * kTwipsPerPixel),
      top_(static_cast<float>(widget->y()) * kTwipsPerPixel),
      width_(static_cast<float>(widget->width()) * kTwipsPerPixel),
      height_(static_cast<float>(widget->height()) * kTwipsPerPixel) {}

void TwipGeometry::move() {
    widget_->move(PixelsOf(left_), PixelsOf(top_));
}

// A negative size, which the logic can ask of a bar in a tiny window, shows
// as nothing.
void TwipGeometry::resize() {
    widget_->resize(std::max(0, PixelsOf(width_)), std::max(0, PixelsOf(height_)));
}

void TwipGeometry::SetLeft(float left) {
    left_ = left;
    move();
}

void TwipGeometry::SetTop(float top) {
    top_ = top;
    move();
}

void TwipGeometry::SetWidth(float width) {
    width_ = width;
    resize();
}

void TwipGeometry::SetHeight(float height) {
    height_ = height;
    resize();
}

} // namespace sw::qt
