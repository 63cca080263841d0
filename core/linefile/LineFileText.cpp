#include "linefile/LineFileText.h"

#include "common/Numbers.h"
#include "linefile/LineFieldReader.h"
#include "session/LineLimit.h"
#include "session/SessionState.h"

#include <optional>

namespace sw {
namespace {

void appendRecords(std::string& text, const OneBasedArray<i16>& lines, i16 count, char letter) {
    if (count <= 0) {
        return;
    }
    for (int i = 1; i <= lines.UBound(); ++i) {
        text += '"';
        text += letter;
        text += std::to_string(lines(i));
        text += "\"\r\n";
    }
}

std::optional<LineRecord> recordOf(const std::string& field) {
    if (field.empty()) {
        return std::nullopt;
    }
    const char letter = field[0];
    if (letter != 'H' && letter != 'h' && letter != 'V' && letter != 'v') {
        return std::nullopt;
    }
    const Converted<i16> position = TextToInteger(std::string_view(field).substr(1));
    if (!position.ok()) {
        return std::nullopt;
    }
    const bool horizontal = letter == 'H' || letter == 'h';
    return LineRecord{horizontal ? Direction::Horizontal : Direction::Vertical, position.value};
}

// The counts, the log and every loop index of the line set are 16 bits.
bool fitsTheLineSet(const std::vector<LineRecord>& records) {
    int horizontal = 0;
    for (const LineRecord& record : records) {
        horizontal += record.direction == Direction::Horizontal ? 1 : 0;
    }
    const int total = static_cast<int>(records.size());
    return horizontal <= kMostLinesOfAKind && total - horizontal <= kMostLinesOfAKind &&
           total <= kMostLinesOfAKind;
}

} // namespace

std::string LineFileBytes(const SessionState& state) {
    std::string text;
    appendRecords(text, state.hLines, state.hLineCount, 'H');
    appendRecords(text, state.vLines, state.vLineCount, 'V');
    return text;
}

ParsedLineFile ParseLineFile(std::string_view text) {
    ParsedLineFile parsed;
    LineFieldReader reader(text);
    while (!reader.AtEnd()) {
        const std::optional<LineRecord> record = recordOf(reader.ReadLineField());
        if (!record) {
            return {{}, LineFileProblem::Corrupt};
        }
        parsed.records.push_back(*record);
    }
    if (!fitsTheLineSet(parsed.records)) {
        return {{}, LineFileProblem::TooManyLines};
    }
    return parsed;
}

} // namespace sw
