#pragma once

#include "ports/FileSystem.h"
#include "tools/scenario/Transcript.h"

namespace sw::scripted {

// The real file system, each question logged.
class ScriptedFileSystem : public FileSystem {
public:
    explicit ScriptedFileSystem(Transcript& transcript) : transcript_(transcript) {}
    bool FileExists(const std::string& path) override;

private:
    Transcript& transcript_;
};

} // namespace sw::scripted
