#include "common/ProcessUmask.h"

#include <fstream>
#include <string>
#include <sys/stat.h>

namespace sw {
namespace {

// Read once before main, while the process has a single thread.
const mode_t kMaskAtStart = [] {
    const mode_t mask = ::umask(022);
    ::umask(mask);
    return mask;
}();

} // namespace

mode_t ProcessUmask() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("Umask:", 0) == 0) {
            return static_cast<mode_t>(std::stoul(line.substr(6), nullptr, 8) & 0777);
        }
    }
    return kMaskAtStart;
}

} // namespace sw
