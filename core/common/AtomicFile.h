#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace sw {

// When a committed file reaches the disk. Immediate: before Commit returns
// (the data before the rename, the folder after it). Deferred: whenever the
// system writes it back, for a batch of many files that makes them durable
// at once with SyncFileSystem, where a sync for each file would cost far
// more than the writing; until then a power loss may leave a replaced file
// empty.
enum class SyncMode { Immediate, Deferred };

// Writes a file through a temporary file in the same folder that is renamed
// over the target only once everything is written and on the disk: a failed
// write, or a power loss, leaves an existing file of that name as it was.
// Failures throw FileWriteError.
class AtomicFile {
public:
    explicit AtomicFile(std::string path, SyncMode sync = SyncMode::Immediate);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    // The temporary file's path, for writers (such as an encoder) that write by name.
    const std::string& TemporaryPath() const { return temporary_; }

    void Write(const void* data, std::size_t size);
    void Write(std::string_view text) { Write(text.data(), text.size()); }

    // Syncs, closes and renames over the target, then syncs the folder.
    // Without Commit, or when it fails before the rename, the temporary file
    // is removed and the target is untouched.
    void Commit();

private:
    void fail(const std::string& reason);
    // Closes and removes the temporary file, unless it has become the target.
    void discard();
    std::string path_;
    std::string temporary_;
    SyncMode sync_;
    int fd_ = -1;
    bool committed_ = false;
};

// Puts everything written on the file system that holds `path` (a file or
// folder) on the disk; throws FileWriteError naming `path` when it cannot.
void SyncFileSystem(const std::string& path);

// Reads a whole file; nothing when it cannot be read, with the cause in `reason`.
bool ReadWholeFile(const std::string& path, std::string& contents, std::string& reason);

// The cause of the last failed system call, as words.
std::string SystemErrorText(int error);

} // namespace sw
