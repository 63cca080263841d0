#pragma once

#include "ports/FileSystem.h"
#include "tools/scenario/Transcript.h"

#include <functional>
#include <map>
#include <string>

namespace sw::scripted {

// The real file system, each question logged.
class ScriptedFileSystem : public FileSystem {
public:
    explicit ScriptedFileSystem(Transcript& transcript) : transcript_(transcript) {}
    bool FileExists(const std::string& path) override;
    // Something another program does right after this program next asks
    // about the file, between its test and its open: deleting the file,
    // filling the disk.
    void AfterTest(const std::string& path, std::function<void()> action) {
        afterTest_[path] = std::move(action);
    }
    // The file is removed right after the program next learns that it exists.
    void VanishAfterTest(const std::string& path);

private:
    Transcript& transcript_;
    std::map<std::string, std::function<void()>> afterTest_;
};

} // namespace sw::scripted
