#include "imaging/JpegWriter.h"

#include "common/ProgramName.h"
#include "imaging/JpegWriteError.h"
#include "imaging/cDIBSection.h"

#include <limits>
#include <memory>
#include <optional>
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

// One compressor and one output buffer serve every call on a thread: an
// export writes a hundred sections in a row, and a fresh handle and a fresh
// worst-case buffer for each cost as much as encoding a small section.
struct EncoderCache {
    Encoder encoder;
    EncodedBytes buffer;
    unsigned long capacity = 0;
};

EncoderCache& threadEncoder() {
    thread_local EncoderCache cache;
    if (!cache.encoder) {
        cache.encoder.reset(tjInitCompress());
        if (!cache.encoder) {
            failInit(-1);
        }
    }
    return cache;
}

// Makes room for the encoder's worst case up front, so that it never grows
// and copies its buffer; false (the encoder then allocates as it goes) for a
// picture whose worst case the allocator cannot take in one piece.
bool reserveOutput(EncoderCache& cache, const cDIBSection& surface) {
    const unsigned long size = tjBufSize(surface.Width(), surface.Height(), TJSAMP_420);
    if (size == static_cast<unsigned long>(-1) || size > std::numeric_limits<int>::max()) {
        return false;
    }
    if (size > cache.capacity) {
        cache.buffer.reset(tjAlloc(static_cast<int>(size)));
        cache.capacity = cache.buffer ? size : 0;
    }
    return cache.buffer != nullptr;
}

// Compresses the buffer in its stored form: bottom-up BGR rows with their
// pad. The bytes stay in the thread's buffer until the next call.
unsigned long encode(EncoderCache& cache, const cDIBSection& surface, i32 quality) {
    if (const std::optional<int> status = refusal(surface, quality)) {
        failWrite(*status);
    }
    const bool reserved = reserveOutput(cache, surface);
    unsigned char* output = cache.buffer.release();
    unsigned long size = reserved ? cache.capacity : 0;
    const int flags = TJFLAG_BOTTOMUP | (reserved ? TJFLAG_NOREALLOC : 0);
    const int status = tjCompress2(cache.encoder.get(), surface.DIBSectionBitsPtr(),
                                   surface.Width(), surface.BytesPerScanLine(), surface.Height(),
                                   TJPF_BGR, &output, &size, TJSAMP_420, quality, flags);
    cache.buffer.reset(output);
    if (!reserved) {
        cache.capacity = 0;
    }
    if (status != 0) {
        failWrite(status);
    }
    return size;
}

} // namespace

EncodedFile EncodeJPG(const cDIBSection& surface, i32 quality) {
    EncoderCache& cache = threadEncoder();
    const unsigned long size = encode(cache, surface, quality);
    EncodedFile file;
    file.bytes.assign(cache.buffer.get(), cache.buffer.get() + size);
    file.keepsReplacedTimes = true;
    return file;
}

bool WriteJPGFile(const cDIBSection& surface, const std::string& fileName, i32 quality) {
    // Encoded first, in memory: a refused or failed encode leaves the disk alone.
    WriteEncodedFile(EncodeJPG(surface, quality), fileName);
    return true;
}

} // namespace sw
