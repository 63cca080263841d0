// Any text as a scenario script: the reader splits it and the runner either
// carries a line out or refuses it with a script error; nothing else ends it.
// Lines that would reach outside the scratch folder or declare pictures
// larger than a test needs are left out: they test the machine, not the reader.
#include "tools/scenario/ScenarioRunner.h"
#include "tools/scenario/ScriptError.h"
#include "tools/scenario/ScriptTokens.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <unistd.h>

namespace {

constexpr std::size_t kMaxLines = 64;

bool isSmallNumber(const std::string& word) {
    return !word.empty() && word.size() <= 4 &&
           word.find_first_not_of("0123456789") == std::string::npos;
}

// Whether the line stays inside the scratch folder and within a small picture.
bool harmless(const std::string& line) {
    if (line.find('/') != std::string::npos || line.find("..") != std::string::npos) {
        return false;
    }
    std::vector<std::string> words;
    try {
        words = sw::scripted::SplitScriptLine(line);
    } catch (const sw::scripted::ScriptError&) {
        return true; // the runner refuses it again, which is what is tested
    }
    if (!words.empty() && words[0] == "picture") {
        return words.size() == 4 && isSmallNumber(words[2]) && isSmallNumber(words[3]);
    }
    return true;
}

void enterScratchFolder() {
    static const bool entered = [] {
        char folder[] = "/tmp/slicewright-fuzz-script.XXXXXX";
        return ::mkdtemp(folder) != nullptr && ::chdir(folder) == 0;
    }();
    if (!entered) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    enterScratchFolder();
    std::istringstream script(std::string(reinterpret_cast<const char*>(data), size));
    std::ostringstream transcript;
    sw::scripted::ScenarioRunner runner(transcript, nullptr);
    std::size_t count = 0;
    for (std::string line; std::getline(script, line) && count < kMaxLines; ++count) {
        if (!harmless(line)) {
            continue;
        }
        try {
            runner.RunLine(line);
        } catch (const sw::scripted::ScriptError&) {
        }
    }
    return 0;
}
