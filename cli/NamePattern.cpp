#include "NamePattern.h"

#include <algorithm>

namespace sw {
namespace {

// Widths beyond this pad nothing useful and only make names long.
constexpr int kMostWidth = 9;

std::string padded(int value, int width) {
    std::string digits = std::to_string(value);
    if (static_cast<int>(digits.size()) < width) {
        digits.insert(0, static_cast<std::size_t>(width) - digits.size(), '0');
    }
    return digits;
}

} // namespace

std::optional<NamePattern::Part> NamePattern::parseField(const std::string& inside,
                                                         std::string& problem) {
    const std::size_t colon = inside.find(':');
    const std::string name = inside.substr(0, colon);
    Part part;
    if (name == "base") {
        part.field = Field::Base;
    } else if (name == "n") {
        part.field = Field::Number;
    } else if (name == "row") {
        part.field = Field::Row;
    } else if (name == "col") {
        part.field = Field::Column;
    } else {
        problem = "unknown field {" + inside + "}; the fields are {base} {n} {row} {col}";
        return std::nullopt;
    }
    if (colon == std::string::npos) {
        return part;
    }
    const std::string width = inside.substr(colon + 1);
    const bool digits =
        !width.empty() && width.size() <= 2 &&
        std::all_of(width.begin(), width.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (part.field == Field::Base || !digits || std::stoi(width) > kMostWidth) {
        problem = "bad padding in {" + inside + "}; a number field takes a width such as {n:03}";
        return std::nullopt;
    }
    part.width = std::stoi(width);
    return part;
}

std::optional<NamePattern> NamePattern::Parse(const std::string& text, std::string& problem) {
    NamePattern pattern;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t open = text.find_first_of("{}", at);
        if (open == std::string::npos || open > at) {
            pattern.parts_.push_back({Field::Text, text.substr(at, open - at), 0});
            at = std::min(open, text.size());
            continue;
        }
        const std::size_t close = text.find('}', open);
        if (text[open] == '}' || close == std::string::npos) {
            problem = "unbalanced brace in the name pattern \"" + text + "\"";
            return std::nullopt;
        }
        std::optional<Part> part = parseField(text.substr(open + 1, close - open - 1), problem);
        if (!part) {
            return std::nullopt;
        }
        pattern.parts_.push_back(*part);
        at = close + 1;
    }
    const auto has = [&](Field field) {
        return std::any_of(pattern.parts_.begin(), pattern.parts_.end(),
                           [field](const Part& part) { return part.field == field; });
    };
    if (!has(Field::Number) && !(has(Field::Row) && has(Field::Column))) {
        problem = "the name pattern \"" + text +
                  "\" gives every piece the same name; it needs {n}, or {row} and {col}";
        return std::nullopt;
    }
    if (text.find('/') != std::string::npos) {
        problem = "the name pattern \"" + text + "\" holds a '/'; pieces go into the --out folder";
        return std::nullopt;
    }
    return pattern;
}

std::string NamePattern::Name(const std::string& base, int number, int row, int column) const {
    std::string name;
    for (const Part& part : parts_) {
        switch (part.field) {
        case Field::Text:
            name += part.text;
            break;
        case Field::Base:
            name += base;
            break;
        case Field::Number:
            name += padded(number, part.width);
            break;
        case Field::Row:
            name += padded(row, part.width);
            break;
        case Field::Column:
            name += padded(column, part.width);
            break;
        }
    }
    return name;
}

} // namespace sw
