#pragma once

#include <stdexcept>
#include <string>

namespace sw {

// A file that could not be written: names the file and the cause, in words
// a user can act on.
class FileWriteError : public std::runtime_error {
public:
    FileWriteError(std::string path, std::string reason)
        : std::runtime_error(path + ": " + reason), path_(std::move(path)),
          reason_(std::move(reason)) {}

    const std::string& Path() const { return path_; }
    const std::string& Reason() const { return reason_; }

private:
    std::string path_;
    std::string reason_;
};

} // namespace sw
