#include "tests/common/SmallTmpfs.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <sys/mount.h>
#include <unistd.h>

namespace sw::test {
namespace {

[[noreturn]] void cannotMount(const std::string& what) {
    throw std::runtime_error("cannot " + what + " a tmpfs for the test (" + std::strerror(errno) +
                             "): this test needs root, as CI has");
}

} // namespace

SmallTmpfs::SmallTmpfs(std::size_t bytes, Access access) {
    char pattern[] = "/tmp/sw-tmpfs-XXXXXX";
    if (::mkdtemp(pattern) == nullptr) {
        cannotMount("make a folder for");
    }
    path_ = pattern;
    const std::string options = "size=" + std::to_string(bytes) + ",mode=0755";
    const unsigned long flags = access == Access::ReadOnly ? MS_RDONLY : 0;
    if (::mount("tmpfs", path_.c_str(), "tmpfs", flags, options.c_str()) != 0) {
        ::rmdir(path_.c_str());
        cannotMount("mount");
    }
}

SmallTmpfs::~SmallTmpfs() {
    ::umount2(path_.c_str(), MNT_DETACH);
    ::rmdir(path_.c_str());
}

void SmallTmpfs::MakeReadOnly() {
    if (::mount("tmpfs", path_.c_str(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) != 0) {
        cannotMount("remount read-only");
    }
}

} // namespace sw::test
