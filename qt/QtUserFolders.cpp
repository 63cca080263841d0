#include "qt/QtUserFolders.h"

#include "qt/QtText.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace sw::qt {

std::string QtUserFolders::PicturesFolder() {
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    if (!pictures.isEmpty() && QFileInfo(pictures).isDir()) {
        return FromQ(pictures);
    }
    return FromQ(QDir::homePath());
}

bool QtUserFolders::FolderExists(const std::string& path) {
    return !path.empty() && QFileInfo(ToQ(path)).isDir();
}

} // namespace sw::qt
