// Any bytes as a line file: the field reader always gets to the end, and a
// file either loads whole or is refused whole.
#include "linefile/LineFieldReader.h"
#include "linefile/LineFileText.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void readEveryField(std::string_view text) {
    sw::LineFieldReader reader(text);
    std::size_t fields = 0;
    while (!reader.AtEnd()) {
        reader.ReadLineField();
        // Every field takes at least one byte, so there are never more fields than bytes.
        if (++fields > text.size()) {
            std::abort();
        }
    }
}

void parseWholeFile(std::string_view text) {
    const sw::ParsedLineFile parsed = sw::ParseLineFile(text);
    if (parsed.problem != sw::LineFileProblem::None && !parsed.records.empty()) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    readEveryField(text);
    parseWholeFile(text);
    return 0;
}
