#pragma once

#include "export/CutPlan.h"
#include "export/SectionCells.h"

#include <optional>
#include <string>

namespace sw {

class ClipContainer;
class SectionEncoder;

// Why a section could not be written.
struct SectionFailure {
    enum class Kind {
        // The JPEG encoder refused the section.
        Encoder,
        // The file could not be created or written (folder, disk).
        File,
        // The section could not be cut from the picture.
        Clip,
    };
    Kind kind = Kind::Encoder;
    std::string path;
    std::string reason;
};

// What the writing of one run uses: the clean picture, the format and quality, the writers.
struct SectionOutput {
    ClipContainer& clipContainer;
    const std::string& saveFormat;
    i32 quality;
    SectionEncoder& encoder;
};

// Writes one section and stores its cell; a section without area inside the
// picture writes no file and gets the empty cell.
std::optional<SectionFailure> WriteSection(SectionOutput& output, const SectionRect& section,
                                           SectionCells& cells);

// Writes the sections in plan order and stops at the first failure.
std::optional<SectionFailure> WriteSections(SectionOutput& output, const CutPlan& plan,
                                            SectionCells& cells);

} // namespace sw
