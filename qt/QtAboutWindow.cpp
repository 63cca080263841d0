#include "qt/QtAboutWindow.h"

#include "dialogs/frmAbout.h"
#include "qt/LastWindowRule.h"

#include <QWidget>

namespace sw::qt {

QtAboutWindow::~QtAboutWindow() {
    delete window_;
}

void QtAboutWindow::Show(std::unique_ptr<frmAbout> form) {
    form_ = std::move(form);
    delete window_;
    window_ = new AboutForm(*form_, raise);
    window_->adjustSize();
    window_->move(owner_->geometry().center() - window_->rect().center());
    window_->show();
}

void QtAboutWindow::BringToFront() {
    if (window_ != nullptr) {
        window_->raise();
        window_->activateWindow();
    }
}

void QtAboutWindow::Close() {
    if (window_ != nullptr) {
        window_->hide();
        window_->deleteLater();
        window_ = nullptr;
    }
    form_.reset();
    // Closed after the main window, it was the last one.
    QuitWhenNoWindowIsLeft();
}

} // namespace sw::qt
