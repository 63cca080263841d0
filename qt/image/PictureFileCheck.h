#pragma once

#include <optional>
#include <string>

namespace sw {

// Damage that a decoder would paper over. Qt's readers fill in what is
// missing from a cut-off JPG or GIF file with grey or black and report
// success; such a file is refused instead, so that nobody cuts sections out
// of half a picture without knowing.
std::optional<std::string> TruncationProblem(const std::string& path, const std::string& format);

} // namespace sw
