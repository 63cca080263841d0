#include "tests/common/SmallTmpfs.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fstream>
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

void SmallTmpfs::FillUp() const {
    std::ofstream filler(Path("filler"), std::ios::binary);
    const std::string block(4096, 'f');
    while (filler.write(block.data(), static_cast<std::streamsize>(block.size()))) {
    }
    filler.close();
    // What the stream held when the disk ran out goes byte by byte.
    std::ofstream rest(Path("filler"), std::ios::binary | std::ios::app);
    while (rest.put('f') && rest.flush()) {
    }
}

} // namespace sw::test
