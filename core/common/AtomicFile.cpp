#include "common/AtomicFile.h"

#include "common/FileWriteError.h"
#include "common/ProcessUmask.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace sw {
namespace {

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) {
        return ".";
    }
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string nameOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// A hidden name beside the target's. A target name may use all 255 bytes a
// name can have: its start is enough to tell whose temporary file this is.
std::string temporaryName(const std::string& name) {
    constexpr std::size_t kLongestName = 255;
    constexpr std::string_view suffix = ".XXXXXX";
    const std::string_view start =
        std::string_view(name).substr(0, kLongestName - 1 - suffix.size());
    std::string temporary;
    temporary.reserve(1 + start.size() + suffix.size());
    temporary.append(".").append(start).append(suffix);
    return temporary;
}

// A new file takes the permissions a new file would get (mkstemp makes it
// 0600, which a web server serving the sections could not read); a replaced
// file keeps its own.
bool matchPermissions(int fd, const std::string& target) {
    struct stat old {};
    const mode_t mode =
        ::stat(target.c_str(), &old) == 0 ? old.st_mode & 07777 : 0666 & ~ProcessUmask();
    return ::fchmod(fd, mode) == 0;
}

// Makes a rename in the folder survive a power loss. Called once the new
// file is in place, so a folder that cannot be synced (one the user may
// write but not read, a file system that syncs no folders) costs only that
// guarantee, not the file: it is no failure.
void syncFolder(const std::string& folder) {
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

} // namespace

std::string SystemErrorText(int error) {
    switch (error) {
    case ENOSPC:
        return "the disk is full";
    case EACCES:
    case EPERM:
        return "permission denied";
    case EROFS:
        return "the folder is on a read-only file system";
    case ENOENT:
        return "the folder does not exist";
    case ENOTDIR:
        return "a part of the path is not a folder";
    case EISDIR:
        return "a folder of that name is in the way";
    case EDQUOT:
        return "the disk quota is used up";
    case EFBIG:
        return "the file would be too large";
    case ENAMETOOLONG:
        return "the name is too long";
    default:
        return std::strerror(error);
    }
}

AtomicFile::AtomicFile(std::string path, SyncMode sync) : path_(std::move(path)), sync_(sync) {
    std::string pattern = folderOf(path_) + "/" + temporaryName(nameOf(path_));
    fd_ = ::mkostemp(pattern.data(), O_CLOEXEC);
    if (fd_ < 0) {
        fail(SystemErrorText(errno));
    }
    temporary_ = pattern;
    if (!matchPermissions(fd_, path_)) {
        const int error = errno;
        discard();
        fail(SystemErrorText(error));
    }
}

AtomicFile::~AtomicFile() {
    discard();
}

void AtomicFile::discard() {
    if (fd_ >= 0) {
        ::close(fd_);
        fd_ = -1;
    }
    if (!committed_ && !temporary_.empty()) {
        ::unlink(temporary_.c_str());
        temporary_.clear();
    }
}

void AtomicFile::fail(const std::string& reason) {
    throw FileWriteError(path_, reason);
}

void AtomicFile::Write(const void* data, std::size_t size) {
    const char* bytes = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = ::write(fd_, bytes, size);
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            fail(SystemErrorText(errno));
        }
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
}

void AtomicFile::Commit() {
    // The data reaches the disk before the name points at it, so that a
    // power loss leaves the old file or the new one, never an empty one.
    if (sync_ == SyncMode::Immediate && ::fsync(fd_) != 0) {
        fail(SystemErrorText(errno));
    }
    const int closed = ::close(fd_);
    fd_ = -1;
    if (closed != 0) {
        fail(SystemErrorText(errno));
    }
    if (::rename(temporary_.c_str(), path_.c_str()) != 0) {
        fail(SystemErrorText(errno));
    }
    committed_ = true;
    if (sync_ == SyncMode::Immediate) {
        syncFolder(folderOf(path_));
    }
}

void SyncFileSystem(const std::string& path) {
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const int error = fd < 0 || ::syncfs(fd) != 0 ? errno : 0;
    if (fd >= 0) {
        ::close(fd);
    }
    if (error != 0) {
        throw FileWriteError(path,
                             "the files could not be put on the disk: " + SystemErrorText(error));
    }
}

bool ReadWholeFile(const std::string& path, std::string& contents, std::string& reason) {
    // A folder opens like a file and reads as nothing at all.
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        reason = "it is a folder, not a file";
        return false;
    }
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        // The causes are worded for writing; a missing file is not a missing folder.
        reason = errno == ENOENT ? "there is no file of that name" : SystemErrorText(errno);
        return false;
    }
    std::ostringstream buffer;
    buffer << in.rdbuf();
    if (in.bad()) {
        reason = "the file could not be read";
        return false;
    }
    contents = buffer.str();
    return true;
}

} // namespace sw
