#pragma once

#include "common/Types.h"
#include "session/LineSet.h"

#include <string>
#include <string_view>
#include <vector>

namespace sw {

struct SessionState;

// One line as a line file holds it.
struct LineRecord {
    Direction direction;
    i16 position;
    bool operator==(const LineRecord&) const = default;
};

enum class LineFileProblem {
    None,
    // A field without a line letter, or with no 16-bit number behind it.
    Corrupt,
    // More lines than the line set can hold.
    TooManyLines,
};

struct ParsedLineFile {
    std::vector<LineRecord> records;
    LineFileProblem problem = LineFileProblem::None;
};

// The text of a line file: one quoted record a line ("H33" CR LF), all
// horizontal lines in array order, then all vertical ones. No lines, no bytes.
std::string LineFileBytes(const SessionState& state);

// Reads a line file's text completely: every record, or the problem that
// keeps the file from loading as a whole.
ParsedLineFile ParseLineFile(std::string_view text);

} // namespace sw
