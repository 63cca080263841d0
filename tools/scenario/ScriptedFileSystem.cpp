#include "tools/scenario/ScriptedFileSystem.h"

#include "common/QuotedText.h"

#include <filesystem>

namespace sw::scripted {

bool ScriptedFileSystem::FileExists(const std::string& path) {
    std::error_code error;
    const bool exists = std::filesystem::is_regular_file(path, error);
    transcript_.Line("exists " + QuoteText(path) + " -> " + FlagText(exists));
    const auto action = afterTest_.find(path);
    if (action != afterTest_.end()) {
        const std::function<void()> run = std::move(action->second);
        afterTest_.erase(action);
        run();
    }
    return exists;
}

void ScriptedFileSystem::VanishAfterTest(const std::string& path) {
    AfterTest(path, [this, path] {
        std::error_code error;
        std::filesystem::remove(path, error);
        transcript_.Line("  (the file " + QuoteText(path) + " vanishes)");
    });
}

} // namespace sw::scripted
