#include "qt/QtFormWindow.h"

#include "common/Types.h"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>

namespace sw::qt {

TwipRect QtFormWindow::Bounds() const {
    const QRect frame = form_->frameGeometry();
    return {static_cast<float>(frame.x()) * kTwipsPerPixel,
            static_cast<float>(frame.y()) * kTwipsPerPixel,
            static_cast<float>(frame.width()) * kTwipsPerPixel,
            static_cast<float>(frame.height()) * kTwipsPerPixel};
}

int QtFormWindow::WindowState() const {
    const Qt::WindowStates state = form_->windowState();
    if (state & Qt::WindowMinimized) {
        return 1;
    }
    return state & Qt::WindowMaximized ? 2 : 0;
}

void QtFormWindow::SetMousePointer(MousePointer pointer) {
    const bool busy = pointer == MousePointer::Hourglass;
    if (busy && !busy_) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (!busy && busy_) {
        QApplication::restoreOverrideCursor();
    }
    busy_ = busy;
}

void QtFormWindow::Unload() {
    form_->close();
}

// Until the window is fitted to its picture by rule, these keep it simple:
// the window takes the picture's size within the screen, and scrolls beyond.
void QtFormWindow::NarrowWindow() {}

void QtFormWindow::FitNormalWindow() {
    const QSize wanted = form_->sizeHint();
    const QSize room = form_->screen()->availableSize() * 9 / 10;
    form_->resize(wanted.boundedTo(room).expandedTo(form_->minimumSizeHint()));
}

void QtFormWindow::FitMaximisedWindow() {}

} // namespace sw::qt
