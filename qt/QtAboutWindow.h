#pragma once

#include "dialogs/frmAbout.h"
#include "ports/AboutWindow.h"
#include "qt/AboutForm.h"

#include <memory>

class QWidget;

namespace sw::qt {

// Keeps the one about window while it is on the screen.
class QtAboutWindow : public AboutWindow {
public:
    explicit QtAboutWindow(QWidget* owner) : owner_(owner) {}
    ~QtAboutWindow() override;

    // How the window's clicks reach the form (set by the main window).
    AboutForm::Raise raise;

    frmAbout* OpenForm() override { return form_.get(); }
    void Show(std::unique_ptr<frmAbout> form) override;
    void BringToFront() override;
    void Close() override;

private:
    QWidget* owner_;
    std::unique_ptr<frmAbout> form_;
    AboutForm* window_ = nullptr;
};

} // namespace sw::qt
