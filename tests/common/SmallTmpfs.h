#pragma once

#include <string>

namespace sw::test {

// A small tmpfs of its own, mounted for one test and gone after it: a disk
// that fills up after `bytes`, or one mounted read-only. Needs root (CI runs
// as root); throws, so that the test fails, when it cannot be mounted.
class SmallTmpfs {
public:
    enum class Access { ReadWrite, ReadOnly };
    explicit SmallTmpfs(std::size_t bytes, Access access = Access::ReadWrite);
    ~SmallTmpfs();
    SmallTmpfs(const SmallTmpfs&) = delete;
    SmallTmpfs& operator=(const SmallTmpfs&) = delete;

    std::string Path(const std::string& name) const { return path_ + "/" + name; }
    const std::string& Path() const { return path_; }
    // Mounts it again read-only, keeping what is on it.
    void MakeReadOnly();
    // Takes every byte left on it with a file named "filler".
    void FillUp() const;

private:
    std::string path_;
};

} // namespace sw::test
