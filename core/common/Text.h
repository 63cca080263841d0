#pragma once

#include <string>
#include <string_view>

namespace sw {

// Blanks trimmed at both ends (the blank only, as the tool's trims do).
std::string Trim(std::string_view text);
std::string UpperCase(std::string_view text);
// The last `count` characters, or the whole text when it is shorter.
std::string RightChars(std::string_view text, std::size_t count);
bool EndsWith(std::string_view text, std::string_view ending);

} // namespace sw
