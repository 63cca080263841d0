#include "qt/DisplayCheck.h"

#include <QByteArray>
#include <QtGlobal>

namespace sw::qt {

bool DisplayAvailable() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty() && !platform.startsWith("xcb") && !platform.startsWith("wayland")) {
        return true;
    }
    return !qgetenv("DISPLAY").isEmpty() || !qgetenv("WAYLAND_DISPLAY").isEmpty();
}

} // namespace sw::qt
