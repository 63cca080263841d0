#include "qt/QtShell.h"

#include "qt/QtText.h"

#include <QDesktopServices>
#include <QUrl>

namespace sw::qt {

void QtShell::OpenDocument(const std::string& target) {
    const QString text = ToQ(target);
    const QUrl url = text.startsWith('/') ? QUrl::fromLocalFile(text) : QUrl(text);
    QDesktopServices::openUrl(url);
}

} // namespace sw::qt
