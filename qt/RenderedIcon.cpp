#include "qt/RenderedIcon.h"

namespace sw::qt {

QIcon RenderedIcon(const QString& prefix, const QString& name, std::initializer_list<int> sizes) {
    QIcon icon;
    for (const int size : sizes) {
        icon.addFile(QString(":/%1/%2-%3.png").arg(prefix, name).arg(size), QSize(size, size));
    }
    return icon;
}

} // namespace sw::qt
