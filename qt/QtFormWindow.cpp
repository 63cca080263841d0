#include "qt/QtFormWindow.h"

#include "common/Types.h"
#include "qt/TwipGeometry.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <algorithm>

namespace sw::qt {
namespace {

constexpr float kFrameWidth = 2 * 60;
constexpr float kFrameHeight = 630 + 60;

float twips(int pixels) {
    return static_cast<float>(pixels) * kTwipsPerPixel;
}

} // namespace

void QtFormWindow::Attach(ScrollBar& hscroll, ScrollBar& vscroll, CornerPiece& picResize,
                          std::vector<FormControl*> controls) {
    hscroll_ = &hscroll;
    vscroll_ = &vscroll;
    picResize_ = &picResize;
    controls_ = std::move(controls);
}

int QtFormWindow::MenuBand() const {
    const QMenuBar* bar = form_->menuBar();
    return bar->hasHeightForWidth() ? bar->heightForWidth(form_->width())
                                    : bar->sizeHint().height();
}

TwipRect QtFormWindow::Bounds() const {
    const QRect frame = form_->frameGeometry();
    return {twips(frame.x()), twips(frame.y()), twips(form_->width()) + kFrameWidth,
            twips(form_->height() - MenuBand()) + kFrameHeight};
}

void QtFormWindow::SetLeft(float left) {
    form_->move(PixelsOf(left), form_->frameGeometry().y());
}

void QtFormWindow::SetTop(float top) {
    form_->move(form_->frameGeometry().x(), PixelsOf(top));
}

// Qt delivers the resize event of a visible window before resize() returns,
// and the main window raises Form_Resize from it.
void QtFormWindow::SetWidth(float width) {
    form_->resize(std::max(0, PixelsOf(width - kFrameWidth)), form_->height());
}

void QtFormWindow::SetHeight(float height) {
    form_->resize(form_->width(), MenuBand() + std::max(0, PixelsOf(height - kFrameHeight)));
}

int QtFormWindow::WindowState() const {
    const Qt::WindowStates state = form_->windowState();
    if (state & Qt::WindowMinimized) {
        return kWindowMinimised;
    }
    return state & (Qt::WindowMaximized | Qt::WindowFullScreen) ? kWindowMaximised : kWindowNormal;
}

void QtFormWindow::SetWindowState(int state) {
    Qt::WindowStates states =
        form_->windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen);
    if (state == kWindowMinimised) {
        states |= Qt::WindowMinimized;
    } else if (state == kWindowMaximised) {
        states |= Qt::WindowMaximized;
    }
    form_->setWindowState(states);
}

void QtFormWindow::Refresh() {
    form_->update();
}

ScreenMetrics QtFormWindow::Screen() const {
    const QSize size = form_->screen()->geometry().size();
    return {twips(size.width()), twips(size.height()), kTwipsPerPixel};
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

} // namespace sw::qt
