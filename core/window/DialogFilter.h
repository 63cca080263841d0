#pragma once

#include <string>
#include <vector>

namespace sw {

// One choice of a file dialog's type list: its label and its patterns.
struct FilterChoice {
    std::string label;
    std::vector<std::string> patterns;
};

// Reads a filter of label and pattern pairs joined by "|", patterns within a
// pair separated by ";": "Picture Files |*.bmp;*.jpg;*.gif". Labels lose
// their trailing blanks, empty patterns are dropped.
std::vector<FilterChoice> ParseDialogFilter(const std::string& filter);

} // namespace sw
