#pragma once

#include <optional>
#include <string>
#include <utility>

namespace sw {

// Damage that a decoder would paper over. Qt's readers fill in what is
// missing from a cut-off JPG or GIF file with grey or black and report
// success; such a file is refused instead, so that nobody cuts sections out
// of half a picture without knowing.
std::optional<std::string> TruncationProblem(const std::string& path, const std::string& format);

// The size of a GIF's logical screen, which Qt's reader decodes the first
// frame into whatever size the frame itself has; nothing for other files.
std::optional<std::pair<int, int>> GifScreenSize(const std::string& path);

} // namespace sw
