#include "qt/QtFormWindow.h"

#include "common/Types.h"
#include "qt/TwipGeometry.h"
#include "window/StoredLayout.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <algorithm>

namespace sw::qt {
namespace {

constexpr float kFrameWidth = StoredLayout::frameWidth;
constexpr float kFrameHeight = StoredLayout::frameHeight;

// How long a change of state may take the window manager.
constexpr qint64 kStateChangeMillis = 1000;
// How long a move may take the window manager.
constexpr qint64 kMoveMillis = 500;

float twips(int pixels) {
    return static_cast<float>(pixels) * kTwipsPerPixel;
}

// Notes whether the watched window has had a resize event.
class ResizeWatch : public QObject {
public:
    explicit ResizeWatch(QWidget* window) : window_(window) { window_->installEventFilter(this); }
    ~ResizeWatch() override { window_->removeEventFilter(this); }
    bool Seen() const { return seen_; }
    bool eventFilter(QObject* watched, QEvent* event) override {
        seen_ = seen_ || (watched == window_ && event->type() == QEvent::Resize);
        return false;
    }

private:
    QWidget* window_;
    bool seen_ = false;
};

// A window manager carries out a change of state some time after the
// request. Waiting for its resize keeps the order the logic counts on:
// Form_Resize has run before the write returns, and a size written next is
// not undone by the state change arriving late.
void awaitResize(QWidget* window) {
    if (!window->isVisible()) {
        return;
    }
    const ResizeWatch watch(window);
    QElapsedTimer timer;
    timer.start();
    while (!watch.Seen() && timer.elapsed() < kStateChangeMillis) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
    }
}

// A window manager places a window some time after the request, and until
// then the frame reads its old place: a Top written right after a Left would
// put the window back where it was. Waiting for the place (a little while at
// most; a manager may also refuse it) keeps the writes in order.
void moveFrameTo(QWidget* window, QPoint target) {
    if (window->frameGeometry().topLeft() == target) {
        return;
    }
    window->move(target);
    if (!window->isVisible()) {
        return;
    }
    QElapsedTimer timer;
    timer.start();
    while (window->frameGeometry().topLeft() != target && timer.elapsed() < kMoveMillis) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
    }
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
    moveFrameTo(form_, QPoint(PixelsOf(left), form_->frameGeometry().y()));
}

void QtFormWindow::SetTop(float top) {
    moveFrameTo(form_, QPoint(form_->frameGeometry().x(), PixelsOf(top)));
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
    if (states != form_->windowState()) {
        form_->setWindowState(states);
        awaitResize(form_);
    }
}

void QtFormWindow::Refresh() {
    form_->update();
}

// The work area is what the desktop leaves to windows; where the window
// manager's frame is wider than the form's allowance for it, the difference
// comes off its width, so that a window as wide as the work area fits whole.
ScreenMetrics QtFormWindow::Screen() const {
    const QScreen* screen = form_->screen();
    const QSize size = screen->geometry().size();
    const QRect available = screen->availableGeometry();
    const int frameExcess =
        std::max(0, form_->frameGeometry().width() - form_->width() - PixelsOf(kFrameWidth));
    const TwipRect work{twips(available.x()), twips(available.y()),
                        twips(available.width() - frameExcess), twips(available.height())};
    return {twips(size.width()), twips(size.height()), kTwipsPerPixel, work};
}

void QtFormWindow::SetMousePointer(MousePointer pointer) {
    // The pointer itself tells whether it is busy: an operation broken off by
    // an exception may have left it so, and the event boundary put it back.
    const bool busy = pointer == MousePointer::Hourglass;
    const bool shown = QApplication::overrideCursor() != nullptr;
    if (busy && !shown) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (!busy && shown) {
        QApplication::restoreOverrideCursor();
    }
}

void QtFormWindow::Unload() {
    form_->close();
}

} // namespace sw::qt
