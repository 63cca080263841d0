#include "imaging/BmpWriter.h"
#include "imaging/JpegWriter.h"
#include "imaging/cDIBSection.h"
#include "tests/imaging/TestPictures.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <turbojpeg.h>

namespace sw {
namespace {

constexpr int kSide = 2000;
constexpr int kQuality = 90;

const Picture& photo() {
    static const Picture picture = test::PhotoLikePicture(kSide, kSide);
    return picture;
}

const cDIBSection& surface() {
    static const cDIBSection* made = [] {
        auto* s = new cDIBSection;
        s->CreateFromPicture(photo());
        return s;
    }();
    return *made;
}

const test::ScratchFolder& folder() {
    static const test::ScratchFolder scratch;
    return scratch;
}

// The encoder alone, on the buffer as it stands, with the writer's settings.
void BM_BareTurboJpeg(benchmark::State& state) {
    const cDIBSection& s = surface();
    tjhandle encoder = tjInitCompress();
    for (auto _ : state) {
        unsigned char* bytes = nullptr;
        unsigned long size = 0;
        tjCompress2(encoder, s.DIBSectionBitsPtr(), s.Width(), s.BytesPerScanLine(), s.Height(),
                    TJPF_BGR, &bytes, &size, TJSAMP_420, kQuality, TJFLAG_BOTTOMUP);
        benchmark::DoNotOptimize(bytes);
        tjFree(bytes);
    }
    tjDestroy(encoder);
}

// The encoder alone into a buffer sized for the worst case, as the writer
// does it: what is left of the difference is the file.
void BM_BareTurboJpegPresized(benchmark::State& state) {
    const cDIBSection& s = surface();
    tjhandle encoder = tjInitCompress();
    const unsigned long capacity = tjBufSize(s.Width(), s.Height(), TJSAMP_420);
    unsigned char* bytes = tjAlloc(static_cast<int>(capacity));
    for (auto _ : state) {
        unsigned long size = capacity;
        tjCompress2(encoder, s.DIBSectionBitsPtr(), s.Width(), s.BytesPerScanLine(), s.Height(),
                    TJPF_BGR, &bytes, &size, TJSAMP_420, kQuality,
                    TJFLAG_BOTTOMUP | TJFLAG_NOREALLOC);
        benchmark::DoNotOptimize(bytes);
    }
    tjFree(bytes);
    tjDestroy(encoder);
}

// The JPG road: encoder, a temporary file, the rename over the last file.
// Replacing costs more than a new file on ext4, which starts writing the new
// data out when a rename replaces a file: the ordering that keeps a crash from
// leaving an empty file where the old one stood.
void BM_WriteJPGFile(benchmark::State& state) {
    const std::string path = folder().Path("section.jpg");
    for (auto _ : state) {
        WriteJPGFile(surface(), path, kQuality);
    }
}

// The same for a file that is not there yet, the usual case of an export.
void BM_WriteJPGFileNew(benchmark::State& state) {
    const std::string path = folder().Path("new.jpg");
    for (auto _ : state) {
        WriteJPGFile(surface(), path, kQuality);
        state.PauseTiming();
        std::remove(path.c_str());
        state.ResumeTiming();
    }
}
// The BMP road, from the picture's bytes.
void BM_SavePicture(benchmark::State& state) {
    const std::string path = folder().Path("section.bmp");
    for (auto _ : state) {
        SavePicture(photo(), path);
    }
}

BENCHMARK(BM_BareTurboJpeg)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_BareTurboJpegPresized)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_WriteJPGFile)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_WriteJPGFileNew)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_SavePicture)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
} // namespace sw

BENCHMARK_MAIN();
