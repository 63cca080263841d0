#include "imaging/EncodedFile.h"

#include "common/AtomicFile.h"

#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace sw {
namespace {

std::optional<struct stat> existingFile(const std::string& path) {
    struct stat facts {};
    if (::stat(path.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) {
        return std::nullopt;
    }
    return facts;
}

void keepTimes(const std::optional<struct stat>& old, const std::string& path) {
    if (!old) {
        return;
    }
    const struct timespec times[2] = {old->st_atim, old->st_mtim};
    ::utimensat(AT_FDCWD, path.c_str(), times, 0);
}

} // namespace

void WriteEncodedFile(const EncodedFile& file, const std::string& fileName, SyncMode sync) {
    const std::optional<struct stat> old =
        file.keepsReplacedTimes ? existingFile(fileName) : std::nullopt;
    AtomicFile target(fileName, sync);
    target.Write(file.bytes.data(), file.bytes.size());
    keepTimes(old, target.TemporaryPath());
    target.Commit();
}

} // namespace sw
