#pragma once

#include <string>

namespace sw {

class FileSystem {
public:
    virtual ~FileSystem() = default;
    // Whether a regular file of that name exists.
    virtual bool FileExists(const std::string& path) = 0;
};

} // namespace sw
