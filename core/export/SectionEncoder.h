#pragma once

#include "common/Types.h"

#include <string>

namespace sw {

class Picture;

// Writes one clipped section to its file: the seam between the run and the
// imaging writers, so that a test can make any section fail.
class SectionEncoder {
public:
    virtual ~SectionEncoder() = default;
    // The BMP road; throws FileWriteError when the file cannot be written.
    virtual void SaveBmp(const Picture& clip, const std::string& fileName) = 0;
    // The JPG road through a new surface; false when the encoder fails,
    // FileWriteError when the file cannot be written.
    virtual bool SaveJpg(const Picture& clip, const std::string& fileName, i32 quality) = 0;
};

} // namespace sw
