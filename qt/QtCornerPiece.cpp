#include "qt/QtCornerPiece.h"

#include "window/StoredLayout.h"

#include <QWidget>

namespace sw::qt {

QtCornerPiece::QtCornerPiece(QWidget* widget)
    : QtPlaced(widget, StoredLayout::picResize), widget_(widget) {}

void QtCornerPiece::SetVisible(bool visible) {
    widget_->setVisible(visible);
}

void QtCornerPiece::Refresh() {
    widget_->update();
}

} // namespace sw::qt
