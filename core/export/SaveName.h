#pragma once

#include "export/CutDestination.h"

#include <optional>
#include <string>

namespace sw {

// The format a typed name asks for: "JPG" or "BMP" from its last three
// characters in any case, with no dot required; nothing for any other ending.
std::optional<std::string> FormatOfName(const std::string& fileName);

// The file extension of a saved format: ".bmp" for "BMP", ".jpg" for any other.
std::string ExtensionOfFormat(const std::string& saveFormat);

// Splits a chosen path into its folder (closing '/' included; nothing when
// the name has no folder part) and its base name without the last extension.
struct SplitName {
    std::optional<std::string> Folder;
    std::string BaseName;
};
SplitName SplitChosenName(const std::string& fileName);

// The name the HTML table is written under, from the second dialog: ".html"
// and ".htm" in lower case stand, anything else gets ".html" added.
std::string TableFileNameFromDialog(const std::string& fileName);

} // namespace sw
