#pragma once

#include "ports/Shell.h"

#include <functional>

class QUrl;
class QWidget;

namespace sw::qt {

// Opens documents and web addresses with the desktop's own programs
// (xdg-open). When none can be started the user is told so in a message box
// that names the page, instead of seeing nothing happen.
class QtShell : public Shell {
public:
    explicit QtShell(QWidget* owner) : owner_(owner) {}
    void OpenDocument(const std::string& target) override;

    // How a page is handed to the desktop; a test puts a failing one here.
    std::function<bool(const QUrl&)> open;

private:
    QWidget* owner_;
};

} // namespace sw::qt
