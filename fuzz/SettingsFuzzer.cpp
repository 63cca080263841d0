// Any text in any of the six remembered settings: the start never ends on
// it, and a stored quality that cannot be one is replaced by the default.
#include "tools/scenario/ScenarioRunner.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>

namespace {

constexpr std::array<const char*, 6> kKeys = {"LastOpenDir", "LastSaveDir", "LastPicture",
                                              "SaveFormat",  "HTMLOut",     "JPGComp"};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    std::ostringstream transcript;
    sw::scripted::ScenarioRunner runner(transcript, nullptr);
    // The values follow one another, each ended by a NUL byte (which no value can hold).
    for (const char* key : kKeys) {
        const std::size_t end = std::min(text.find('\0'), text.size());
        runner.Ports().settings.Preset(key, std::string(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    runner.RunLine("start");
    const int quality = runner.CurrentSession().state.JPGComp;
    if (quality < -2147483647 - 1) {
        std::abort();
    }
    runner.RunLine("event mnuExit_Click");
    return 0;
}
