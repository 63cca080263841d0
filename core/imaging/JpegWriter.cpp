#include "imaging/JpegWriter.h"

#include "common/AtomicFile.h"
#include "common/ProgramName.h"
#include "imaging/JpegWriteError.h"
#include "imaging/cDIBSection.h"

#include <fcntl.h>
#include <limits>
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

// The encoder's worst-case output, allocated up front so that it never grows
// and copies its buffer; nothing (the encoder then allocates as it goes) for
// a picture whose worst case the allocator cannot take in one piece.
Encoded outputBuffer(const cDIBSection& surface) {
    const unsigned long size = tjBufSize(surface.Width(), surface.Height(), TJSAMP_420);
    if (size == static_cast<unsigned long>(-1) || size > std::numeric_limits<int>::max()) {
        return {};
    }
    return {EncodedBytes(tjAlloc(static_cast<int>(size))), size};
}

// Compresses the buffer in its stored form: bottom-up BGR rows with their pad.
Encoded encode(void* encoder, const cDIBSection& surface, i32 quality) {
    if (const std::optional<int> status = refusal(surface, quality)) {
        failWrite(*status);
    }
    Encoded encoded = outputBuffer(surface);
    unsigned char* output = encoded.bytes.release();
    const int flags = TJFLAG_BOTTOMUP | (output != nullptr ? TJFLAG_NOREALLOC : 0);
    const int status = tjCompress2(encoder, surface.DIBSectionBitsPtr(), surface.Width(),
                                   surface.BytesPerScanLine(), surface.Height(), TJPF_BGR, &output,
                                   &encoded.size, TJSAMP_420, quality, flags);
    encoded.bytes.reset(output);
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
