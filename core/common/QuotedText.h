#pragma once

#include <string>
#include <string_view>

namespace sw {

// The text in double quotes with \r, \n, \t, \" and \\ escaped: the form in
// which transcripts and dumps show strings.
std::string QuoteText(std::string_view text);

} // namespace sw
