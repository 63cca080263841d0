#include "tools/scenario/ScriptedFileSystem.h"

#include "common/QuotedText.h"

#include <filesystem>

namespace sw::scripted {

bool ScriptedFileSystem::FileExists(const std::string& path) {
    std::error_code error;
    const bool exists = std::filesystem::is_regular_file(path, error);
    transcript_.Line("exists " + QuoteText(path) + " -> " + FlagText(exists));
    return exists;
}

} // namespace sw::scripted
