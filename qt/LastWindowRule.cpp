#include "qt/LastWindowRule.h"

#include <QApplication>
#include <QWidget>

namespace sw::qt {
namespace {

// A window of the program's own that keeps it running while it shows.
bool keepsTheProgramRunning(const QWidget* widget) {
    const Qt::WindowType type = widget->windowType();
    return widget->isVisible() && widget->testAttribute(Qt::WA_QuitOnClose) && type != Qt::Popup &&
           type != Qt::ToolTip && type != Qt::Tool && type != Qt::SplashScreen &&
           type != Qt::Desktop;
}

} // namespace

void QuitWhenNoWindowIsLeft() {
    if (!QGuiApplication::quitOnLastWindowClosed()) {
        return;
    }
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        if (keepsTheProgramRunning(widget)) {
            return;
        }
    }
    QCoreApplication::quit();
}

} // namespace sw::qt
