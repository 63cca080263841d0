#include "tests/common/SyscallLog.h"

#include <dlfcn.h>
#include <sys/stat.h>
#include <sys/types.h>

namespace sw::test {

std::vector<std::string>& SyscallLog() {
    static std::vector<std::string> log;
    return log;
}

} // namespace sw::test

namespace {

template <typename Function> Function* next(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" int fsync(int fd) {
    struct stat about {};
    const bool folder = ::fstat(fd, &about) == 0 && S_ISDIR(about.st_mode);
    sw::test::SyscallLog().push_back(folder ? "fsync folder" : "fsync file");
    return next<int(int)>("fsync")(fd);
}

extern "C" int rename(const char* from, const char* to) noexcept {
    sw::test::SyscallLog().push_back("rename");
    return next<int(const char*, const char*)>("rename")(from, to);
}

extern "C" mode_t umask(mode_t mask) noexcept {
    sw::test::SyscallLog().push_back("umask");
    return next<mode_t(mode_t)>("umask")(mask);
}
