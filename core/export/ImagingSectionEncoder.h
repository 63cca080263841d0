#pragma once

#include "export/SectionEncoder.h"

namespace sw {

// The real writers: the BMP file of the picture for "BMP", a new surface
// encoded as a JPG file for any other format.
class ImagingSectionEncoder : public SectionEncoder {
public:
    std::optional<EncodedFile> Encode(const Picture& clip, const std::string& fileName,
                                      const std::string& saveFormat, i32 quality) override;
    void Write(const EncodedFile& file, const std::string& fileName) override;
    void FinishRun(const std::string& folder) override;
};

} // namespace sw
