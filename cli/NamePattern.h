#pragma once

#include <optional>
#include <string>
#include <vector>

namespace sw {

// A name for the pieces built of fields {base}, {n}, {row} and {col} (row and
// column count from 1, like the number), where a number may be padded with
// zeros to a width: {n:03} gives 007. Text outside braces stands as it is.
class NamePattern {
public:
    // The pattern, or why it is no pattern (in `problem`). A pattern must
    // tell every piece apart: it needs {n}, or both {row} and {col}.
    static std::optional<NamePattern> Parse(const std::string& text, std::string& problem);

    std::string Name(const std::string& base, int number, int row, int column) const;

private:
    enum class Field { Text, Base, Number, Row, Column };
    struct Part {
        Field field = Field::Text;
        std::string text;
        int width = 0;
    };
    static std::optional<Part> parseField(const std::string& inside, std::string& problem);

    std::vector<Part> parts_;
};

} // namespace sw
