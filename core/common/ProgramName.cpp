#include "common/ProgramName.h"

#include <array>
#include <unistd.h>

namespace sw {

std::string ProgramName() {
    std::array<char, 4096> buffer{};
    const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size() - 1);
    std::string path = length > 0 ? std::string(buffer.data(), static_cast<std::size_t>(length))
                                  : std::string("slicewright");
    path.erase(0, path.rfind('/') + 1);
    const std::size_t dot = path.rfind('.');
    if (dot != std::string::npos && dot > 0) {
        path.erase(dot);
    }
    return path;
}

} // namespace sw
