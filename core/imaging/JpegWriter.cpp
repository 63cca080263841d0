#include "imaging/JpegWriter.h"

#include "common/AtomicFile.h"
#include "common/ProgramName.h"
#include "imaging/JpegWriteError.h"
#include "imaging/cDIBSection.h"

#include <fcntl.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <turbojpeg.h>

namespace sw {
namespace {

struct EncoderDeleter {
    void operator()(void* handle) const { tjDestroy(handle); }
};
using Encoder = std::unique_ptr<void, EncoderDeleter>;

struct EncodedDeleter {
    void operator()(unsigned char* bytes) const { tjFree(bytes); }
};
using EncodedBytes = std::unique_ptr<unsigned char, EncodedDeleter>;

struct Encoded {
    EncodedBytes bytes;
    unsigned long size = 0;
};

std::string errorSource() {
    return ProgramName() + ".mIntelJPEGLibrary";
}

[[noreturn]] void failInit(int status) {
    throw JpegWriteError(errorSource(),
                         "Failed to initialise the IJL library: " + std::to_string(status));
}

[[noreturn]] void failWrite(int status) {
    throw JpegWriteError(errorSource(), "Failed to save to JPG " + std::to_string(status));
}

// What the encoder refuses before it runs: a surface without pixels, or a
// quality outside the scale.
std::optional<int> refusal(const cDIBSection& surface, i32 quality) {
    if (surface.DIBSectionBitsPtr() == nullptr || surface.BytesPerScanLine() <= 0) {
        return kJpegStatusNoBuffer;
    }
    if (quality < 1 || quality > 100) {
        return kJpegStatusBadQuality;
    }
    return std::nullopt;
}

// Compresses the buffer in its stored form: bottom-up BGR rows with their pad.
Encoded encode(void* encoder, const cDIBSection& surface, i32 quality) {
    if (const std::optional<int> status = refusal(surface, quality)) {
        failWrite(*status);
    }
    unsigned char* bytes = nullptr;
    unsigned long size = 0;
    const int status = tjCompress2(encoder, surface.DIBSectionBitsPtr(), surface.Width(),
                                   surface.BytesPerScanLine(), surface.Height(), TJPF_BGR, &bytes,
                                   &size, TJSAMP_420, quality, TJFLAG_BOTTOMUP);
    Encoded encoded{EncodedBytes(bytes), size};
    if (status != 0) {
        failWrite(status);
    }
    return encoded;
}

// A replaced file keeps the access and modification times of the old one.
void keepTimes(const std::optional<struct stat>& old, const std::string& path) {
    if (!old) {
        return;
    }
    const struct timespec times[2] = {old->st_atim, old->st_mtim};
    ::utimensat(AT_FDCWD, path.c_str(), times, 0);
}

std::optional<struct stat> existingFile(const std::string& path) {
    struct stat facts {};
    if (::stat(path.c_str(), &facts) != 0 || !S_ISREG(facts.st_mode)) {
        return std::nullopt;
    }
    return facts;
}

} // namespace

bool WriteJPGFile(const cDIBSection& surface, const std::string& fileName, i32 quality) {
    const Encoder encoder(tjInitCompress());
    if (!encoder) {
        failInit(-1);
    }
    // Encoded first, in memory: a refused or failed encode leaves the disk alone.
    const Encoded encoded = encode(encoder.get(), surface, quality);
    const std::optional<struct stat> old = existingFile(fileName);
    AtomicFile file(fileName);
    file.Write(encoded.bytes.get(), encoded.size);
    keepTimes(old, file.TemporaryPath());
    file.Commit();
    return true;
}

} // namespace sw
