#include "qt/image/HeldFile.h"

#include "common/AtomicFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sw {
namespace {

std::string openProblem(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return "the file does not exist";
    case EACCES:
    case EPERM:
        return "the file cannot be read (permission denied)";
    default:
        return "the file cannot be read (" + SystemErrorText(error) + ")";
    }
}

std::optional<std::string> kindProblem(const struct stat& about) {
    if (S_ISDIR(about.st_mode)) {
        return "it is a folder, not a picture file";
    }
    if (about.st_size == 0) {
        return "the file is empty";
    }
    return std::nullopt;
}

} // namespace

HeldFile::HeldFile(const std::string& path) : path_(path) {
    // Not blocking, so that a named pipe chosen by mistake cannot hang the open.
    fd_ = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd_ < 0) {
        problem_ = openProblem(errno);
        return;
    }
    struct stat about {};
    if (::fstat(fd_, &about) != 0) {
        problem_ = openProblem(errno);
        return;
    }
    problem_ = kindProblem(about);
    // The open file under a name of its own, which the decoders (each of
    // which opens what it is given by name) reach even after the file's own
    // name has gone. Without /proc the name it was found under must do.
    const std::string held = "/proc/self/fd/" + std::to_string(fd_);
    if (::access(held.c_str(), R_OK) == 0) {
        path_ = held;
    }
}

HeldFile::~HeldFile() {
    if (fd_ >= 0) {
        ::close(fd_);
    }
}

} // namespace sw
