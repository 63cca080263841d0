#pragma once

#include "ports/FileSystem.h"

namespace sw::qt {

class QtFileSystem : public FileSystem {
public:
    bool FileExists(const std::string& path) override;
};

} // namespace sw::qt
