#pragma once

#include <string>
#include <vector>

namespace sw::scripted {

// Splits a script line into words: blanks separate, double quotes hold a
// word with blanks (escapes \" \\ \r \n \t), and # outside quotes starts a comment.
std::vector<std::string> SplitScriptLine(const std::string& line);

} // namespace sw::scripted
