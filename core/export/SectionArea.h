#pragma once

#include "export/CutPlan.h"

#include <string>
#include <vector>

namespace sw {

// The part of a section that lies inside a picture of that size; a section
// wholly outside, or one without width or height, keeps no area.
SectionRect PartInsidePicture(const SectionRect& section, i32 pictureWidth, i32 pictureHeight);
bool HasArea(const SectionRect& section);

// The numbers of the sections that have no area inside the picture.
std::vector<i32> SectionsWithoutArea(const CutPlan& plan, i32 pictureWidth, i32 pictureHeight);

// "3, 4, 9" - long lists are cut after a dozen numbers with the total named.
std::string NumberList(const std::vector<i32>& numbers);

} // namespace sw
