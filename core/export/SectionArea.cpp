#include "export/SectionArea.h"

#include <algorithm>
#include <tuple>

namespace sw {
namespace {

constexpr std::size_t kNumbersShown = 12;

// Start and size of the overlap of [start, start + size) with [0, limit).
std::pair<i32, i32> overlap(i32 start, i32 size, i32 limit) {
    const i32 from = std::clamp(start, 0, limit);
    const i32 to = std::clamp(start + std::max(size, 0), 0, limit);
    return {from, to - from};
}

} // namespace

SectionRect PartInsidePicture(const SectionRect& section, i32 pictureWidth, i32 pictureHeight) {
    SectionRect inside = section;
    std::tie(inside.Left, inside.Width) = overlap(section.Left, section.Width, pictureWidth);
    std::tie(inside.Top, inside.Height) = overlap(section.Top, section.Height, pictureHeight);
    return inside;
}

bool HasArea(const SectionRect& section) {
    return section.Width > 0 && section.Height > 0;
}

std::vector<i32> SectionsWithoutArea(const CutPlan& plan, i32 pictureWidth, i32 pictureHeight) {
    std::vector<i32> numbers;
    for (const SectionRect& section : plan.Sections) {
        if (!HasArea(PartInsidePicture(section, pictureWidth, pictureHeight))) {
            numbers.push_back(section.Number);
        }
    }
    return numbers;
}

std::string NumberList(const std::vector<i32>& numbers) {
    std::string list;
    for (std::size_t i = 0; i < numbers.size() && i < kNumbersShown; ++i) {
        list += (i == 0 ? "" : ", ") + std::to_string(numbers[i]);
    }
    if (numbers.size() > kNumbersShown) {
        list += ", ... (" + std::to_string(numbers.size()) + " in all)";
    }
    return list;
}

} // namespace sw
