#include "qt/QtShell.h"

#include "qt/QtText.h"

#include <QDesktopServices>
#include <QMessageBox>
#include <QUrl>

namespace sw::qt {

void QtShell::OpenDocument(const std::string& target) {
    const QString text = ToQ(target);
    const QUrl url = text.startsWith('/') ? QUrl::fromLocalFile(text) : QUrl(text);
    const bool opened = open ? open(url) : QDesktopServices::openUrl(url);
    if (!opened) {
        QMessageBox::warning(owner_, "Slicewright",
                             QString("The page %1 could not be shown: no web browser could be "
                                     "started.")
                                 .arg(text));
    }
}

} // namespace sw::qt
