#pragma once

#include "export/CutPlan.h"
#include "export/SectionCells.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace sw {

class ClipContainer;
class SectionEncoder;

// Why the writing of the sections ended before the last one.
struct SectionFailure {
    enum class Kind {
        // The JPEG encoder refused the section.
        Encoder,
        // The file could not be created or written (folder, disk).
        File,
        // The section could not be cut from the picture.
        Clip,
        // The user stopped the run; no file failed.
        Cancelled,
    };
    Kind kind = Kind::Encoder;
    std::string path;
    std::string reason;
};

// What the writing of one run uses: the clean picture, the format and quality,
// the writers, the threads that encode, and who hears of each finished section.
struct SectionOutput {
    SectionOutput(ClipContainer& clip, const std::string& format, i32 jpgQuality,
                  SectionEncoder& writers)
        : clipContainer(clip), saveFormat(format), quality(jpgQuality), encoder(writers) {}

    ClipContainer& clipContainer;
    const std::string& saveFormat;
    i32 quality;
    SectionEncoder& encoder;
    // Sections encoded at once. With 1 each section is encoded on the run's
    // thread just before its file is written; with more, later sections are
    // encoded ahead while files are written. Files, cells and failures are the
    // same either way.
    int threads = 1;
    // Called on the run's thread after each section in plan order (its file
    // written, or none for a section without area), with the number of
    // sections done so far; false ends the run there as cancelled.
    std::function<bool(const SectionRect& section, std::size_t done)> afterSection;
};

// Writes the sections in plan order and stops at the first failure: the files
// before it are written, none after it. A section without area inside the
// picture writes no file and gets the empty cell; every other section's cell
// is stored once its file is written.
std::optional<SectionFailure> WriteSections(SectionOutput& output, const CutPlan& plan,
                                            SectionCells& cells);

} // namespace sw
