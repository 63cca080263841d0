// The largest line file a line set can give: writing it and reading it back.
#include "linefile/LineFileText.h"
#include "session/SessionState.h"

#include <benchmark/benchmark.h>

namespace {

sw::SessionState fullLineSet() {
    sw::SessionState s;
    s.hLineCount = 16384;
    s.vLineCount = 16383;
    s.hLines.ReDimPreserve(s.hLineCount);
    s.vLines.ReDimPreserve(s.vLineCount);
    for (int i = 1; i <= s.hLineCount; ++i) {
        s.hLines(i) = static_cast<sw::i16>(i);
    }
    for (int i = 1; i <= s.vLineCount; ++i) {
        s.vLines(i) = static_cast<sw::i16>(-i);
    }
    return s;
}

void WriteFullLineFile(benchmark::State& state) {
    const sw::SessionState lines = fullLineSet();
    for (auto _ : state) {
        benchmark::DoNotOptimize(sw::LineFileBytes(lines));
    }
}
BENCHMARK(WriteFullLineFile)->Unit(benchmark::kMillisecond);

void ParseFullLineFile(benchmark::State& state) {
    const std::string text = sw::LineFileBytes(fullLineSet());
    for (auto _ : state) {
        benchmark::DoNotOptimize(sw::ParseLineFile(text));
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * text.size()));
}
BENCHMARK(ParseFullLineFile)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
