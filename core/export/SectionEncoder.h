#pragma once

#include "common/Types.h"
#include "imaging/EncodedFile.h"

#include <optional>
#include <string>

namespace sw {

class Picture;

// Turns one clipped section into its file: the seam between the run and the
// imaging writers, so that a test can make any section fail and another
// program can add formats. Encoding and writing are apart so that sections
// can be encoded on every core while their files are written in order.
class SectionEncoder {
public:
    virtual ~SectionEncoder() = default;
    // The bytes of the section's file in the run's format: "BMP" exactly is
    // the BMP road, anything else the JPG road at `quality`. Nothing when the
    // encoder refuses the clip; a clip that cannot be saved at all throws
    // FileWriteError naming `fileName`. Called on several threads at once.
    virtual std::optional<EncodedFile> Encode(const Picture& clip, const std::string& fileName,
                                              const std::string& saveFormat, i32 quality) = 0;
    // Puts the bytes in place under the name; called on the run's thread in
    // section order. A file that cannot be written throws FileWriteError.
    virtual void Write(const EncodedFile& file, const std::string& fileName) = 0;
    // Puts every file written in `folder` by this run on the disk at once,
    // after the run's last file, so that a run of many sections does not pay
    // a sync for each. Throws FileWriteError when the disk refuses.
    virtual void FinishRun(const std::string& folder) { (void)folder; }
};

} // namespace sw
