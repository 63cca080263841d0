#include "tools/scenario/ScriptTokens.h"

#include "tools/scenario/ScriptError.h"

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

} // namespace sw::scripted
