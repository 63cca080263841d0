#include "qt/QtFileSystem.h"

#include "qt/QtText.h"

#include <QFileInfo>

namespace sw::qt {

bool QtFileSystem::FileExists(const std::string& path) {
    return QFileInfo(ToQ(path)).isFile();
}

} // namespace sw::qt
