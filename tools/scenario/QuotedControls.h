#pragma once

#include <string>
#include <string_view>

namespace sw::scripted {

// QuoteText that also shows the control codes it leaves as they are:
// backspace as \b, any other as \xNN, so that transcripts stay plain text.
std::string QuoteWithControls(std::string_view text);

} // namespace sw::scripted
