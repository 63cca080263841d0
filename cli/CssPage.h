#pragma once

#include "PieceLayout.h"

#include <string>

namespace sw {

// A page that rejoins the pieces with a CSS grid: one track for every column
// and row of the cut, at its size in pixels, and every written piece in its
// cell. Pieces are referred to relative to the page's folder, so the page
// finds them wherever it lies. A section without area keeps its cell, empty.
std::string CssPageText(const PieceLayout& layout, const std::string& title,
                        const std::string& pagePath);

// A path as a relative URL: every byte outside the unreserved characters and
// '/' is percent-encoded, so blanks, quotes and non-ASCII letters survive.
std::string UrlPath(const std::string& path);

// The path of `file` as seen from the folder that holds `page`.
std::string RelativeTo(const std::string& file, const std::string& page);

} // namespace sw
