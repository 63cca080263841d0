#include "export/ImagingSectionEncoder.h"

#include "common/AtomicFile.h"
#include "imaging/BmpWriter.h"
#include "imaging/JpegWriteError.h"
#include "imaging/JpegWriter.h"
#include "imaging/cDIBSection.h"

namespace sw {
namespace {

std::optional<EncodedFile> encodeJpg(const Picture& clip, i32 quality) {
    // One surface a section, released once it is encoded. A surface that
    // could not be made has no buffer, and the encoder refuses it.
    cDIBSection surface;
    surface.CreateFromPicture(clip);
    try {
        return EncodeJPG(surface, quality);
    } catch (const JpegWriteError&) {
        return std::nullopt;
    }
}

} // namespace

std::optional<EncodedFile> ImagingSectionEncoder::Encode(const Picture& clip,
                                                         const std::string& fileName,
                                                         const std::string& saveFormat,
                                                         i32 quality) {
    if (saveFormat == "BMP") {
        return EncodeBmp(clip, fileName);
    }
    return encodeJpg(clip, quality);
}

// Each file still goes in place whole through a rename; the one sync at the
// end of the run makes them all durable.
void ImagingSectionEncoder::Write(const EncodedFile& file, const std::string& fileName) {
    WriteEncodedFile(file, fileName, SyncMode::Deferred);
}

void ImagingSectionEncoder::FinishRun(const std::string& folder) {
    SyncFileSystem(folder);
}

} // namespace sw
