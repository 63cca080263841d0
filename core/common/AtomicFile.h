#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace sw {

// Writes a file through a temporary file in the same folder that is renamed
// over the target only once everything is written and on the disk: a failed
// write, or a power loss, leaves an existing file of that name as it was.
// Failures throw FileWriteError.
class AtomicFile {
public:
    explicit AtomicFile(std::string path);
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
    int fd_ = -1;
    bool committed_ = false;
};

// Reads a whole file; nothing when it cannot be read, with the cause in `reason`.
bool ReadWholeFile(const std::string& path, std::string& contents, std::string& reason);

// The cause of the last failed system call, as words.
std::string SystemErrorText(int error);

} // namespace sw
