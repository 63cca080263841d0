#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace sw::scripted {

// Splits a script line into words: blanks separate, double quotes hold a
// word with blanks (escapes \" \\ \r \n \t), and # outside quotes starts a comment.
std::vector<std::string> SplitScriptLine(const std::string& line);

// Refuses the line (ScriptError "usage: ...") unless it has exactly `count`
// words, the command's name among them.
void ExpectWords(const std::vector<std::string>& words, std::size_t count, const char* usage);

// A script's numbers: the whole word must be read, or the line is refused
// (ScriptError), so that a mistyped number never runs as 0.
int WholeNumber(const std::string& word);
float DecimalNumber(const std::string& word);

} // namespace sw::scripted
