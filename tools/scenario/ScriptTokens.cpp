#include "tools/scenario/ScriptTokens.h"

#include "tools/scenario/ScriptError.h"

#include <cerrno>
#include <climits>
#include <cmath>
#include <cstdlib>

namespace sw::scripted {
namespace {

char unescape(char c) {
    switch (c) {
    case 'r':
        return '\r';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'b':
        return '\b';
    default:
        return c;
    }
}

// Reads a quoted word starting after its opening quote; returns the position after the closing one.
std::size_t readQuoted(const std::string& line, std::size_t pos, std::string& word) {
    while (pos < line.size() && line[pos] != '"') {
        if (line[pos] == '\\' && pos + 1 < line.size()) {
            ++pos;
            word += unescape(line[pos]);
        } else {
            word += line[pos];
        }
        ++pos;
    }
    if (pos >= line.size()) {
        throw ScriptError("a quoted word has no closing quote: " + line);
    }
    return pos + 1;
}

} // namespace

std::vector<std::string> SplitScriptLine(const std::string& line) {
    std::vector<std::string> words;
    std::size_t pos = 0;
    while (pos < line.size()) {
        const char c = line[pos];
        if (c == ' ' || c == '\t' || c == '\r') {
            ++pos;
        } else if (c == '#') {
            break;
        } else if (c == '"') {
            std::string word;
            pos = readQuoted(line, pos + 1, word);
            words.push_back(word);
        } else {
            const std::size_t end = line.find_first_of(" \t\r", pos);
            words.push_back(line.substr(pos, end == std::string::npos ? end : end - pos));
            pos = end == std::string::npos ? line.size() : end;
        }
    }
    return words;
}

void ExpectWords(const std::vector<std::string>& words, std::size_t count, const char* usage) {
    if (words.size() != count) {
        throw ScriptError(std::string("usage: ") + usage);
    }
}

int WholeNumber(const std::string& word) {
    char* end = nullptr;
    errno = 0;
    const long value = std::strtol(word.c_str(), &end, 10);
    if (word.empty() || *end != '\0' || errno == ERANGE || value < INT_MIN || value > INT_MAX) {
        throw ScriptError("not a whole number: \"" + word + "\"");
    }
    return static_cast<int>(value);
}

float DecimalNumber(const std::string& word) {
    char* end = nullptr;
    errno = 0;
    const float value = std::strtof(word.c_str(), &end);
    if (word.empty() || *end != '\0' || errno == ERANGE || !std::isfinite(value)) {
        throw ScriptError("not a number: \"" + word + "\"");
    }
    return value;
}

} // namespace sw::scripted
