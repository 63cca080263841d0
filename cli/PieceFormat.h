#pragma once

#include <optional>
#include <string>

namespace sw {

// The file formats a piece can be written in. BMP and JPG are the window's;
// PNG and WebP are this program's additions.
enum class PieceFormat { Bmp, Jpg, Png, Webp };

// "bmp", "jpg", "png" or "webp" in any case ("jpeg" too); nothing for any other text.
std::optional<PieceFormat> ParsePieceFormat(const std::string& text);

// The window's choice for a picture: JPG for a JPEG file, BMP for anything
// else. The file's first bytes decide, not its name.
PieceFormat DefaultFormatFor(const std::string& picturePath);

// ".bmp", ".jpg", ".png", ".webp": what the section names end in.
std::string ExtensionOf(PieceFormat format);
// "bmp", "jpg", "png", "webp".
std::string NameOf(PieceFormat format);

// Whether a piece read back must equal its rectangle pixel for pixel.
bool IsLossless(PieceFormat format);

} // namespace sw
