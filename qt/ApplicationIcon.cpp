#include "qt/ApplicationIcon.h"

namespace sw::qt {

QIcon ApplicationIcon() {
    QIcon icon;
    icon.addFile(QStringLiteral(":/icons/slicewright-48.png"), QSize(48, 48));
    icon.addFile(QStringLiteral(":/icons/slicewright-256.png"), QSize(256, 256));
    return icon;
}

} // namespace sw::qt
