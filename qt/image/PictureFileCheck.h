#pragma once

#include <QSize>
#include <optional>
#include <string>

namespace sw {

// Damage that a decoder would paper over. Qt's readers fill in what is
// missing from a cut-off BMP, JPG or GIF file with grey or black and report
// success; such a file is refused instead, so that nobody cuts sections out
// of half a picture without knowing.
std::optional<std::string> TruncationProblem(const std::string& path, const std::string& format);

// The size a BMP file's header claims, for the pictures whose header Qt
// refuses outright (beyond 16384 x 16384 pixels): so that the user learns
// the picture is too large rather than that it is no picture.
std::optional<QSize> ClaimedBmpSize(const std::string& path);

} // namespace sw
