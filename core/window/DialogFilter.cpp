#include "window/DialogFilter.h"

#include "common/Text.h"

#include <sstream>

namespace sw {
namespace {

std::vector<std::string> split(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream in(text);
    for (std::string part; std::getline(in, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

std::vector<std::string> patternsOf(const std::string& text) {
    std::vector<std::string> patterns;
    for (const std::string& pattern : split(text, ';')) {
        if (!Trim(pattern).empty()) {
            patterns.push_back(Trim(pattern));
        }
    }
    return patterns;
}

} // namespace

std::vector<FilterChoice> ParseDialogFilter(const std::string& filter) {
    const std::vector<std::string> parts = split(filter, '|');
    std::vector<FilterChoice> choices;
    for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
        choices.push_back({Trim(parts[i]), patternsOf(parts[i + 1])});
    }
    return choices;
}

} // namespace sw
