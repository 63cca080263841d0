#pragma once

#include "export/SectionEncoder.h"

namespace sw {

// The real writers: SavePicture for BMP, a new surface and WriteJPGFile for JPG.
class ImagingSectionEncoder : public SectionEncoder {
public:
    void SaveBmp(const Picture& clip, const std::string& fileName) override;
    bool SaveJpg(const Picture& clip, const std::string& fileName, i32 quality) override;
};

} // namespace sw
