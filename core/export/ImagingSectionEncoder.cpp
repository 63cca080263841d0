#include "export/ImagingSectionEncoder.h"

#include "imaging/BmpWriter.h"
#include "imaging/JpegWriteError.h"
#include "imaging/JpegWriter.h"
#include "imaging/cDIBSection.h"

namespace sw {

void ImagingSectionEncoder::SaveBmp(const Picture& clip, const std::string& fileName) {
    SavePicture(clip, fileName);
}

bool ImagingSectionEncoder::SaveJpg(const Picture& clip, const std::string& fileName, i32 quality) {
    // One surface a section, released before the next is made. A surface that
    // could not be made has no buffer, and the writer refuses it.
    cDIBSection surface;
    surface.CreateFromPicture(clip);
    try {
        return WriteJPGFile(surface, fileName, quality);
    } catch (const JpegWriteError&) {
        return false;
    }
}

} // namespace sw
