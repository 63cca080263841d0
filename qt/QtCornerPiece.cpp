#include "qt/QtCornerPiece.h"

#include <QWidget>

namespace sw::qt {

QtCornerPiece::QtCornerPiece(QWidget* widget)
    : QtPlaced(widget, ControlKind::PictureBox, "picResize"), widget_(widget) {}

void QtCornerPiece::SetVisible(bool visible) {
    widget_->setVisible(visible);
}

void QtCornerPiece::Refresh() {
    widget_->update();
}

} // namespace sw::qt
