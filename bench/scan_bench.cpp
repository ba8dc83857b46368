// SPDX-License-Identifier: MIT
//
// The yardsticks of what the processor does alone.
#include <benchmark/benchmark.h>

#include "yardstick.h"

namespace vatro::bench {

namespace {

void ScanBytes(benchmark::State& state, std::size_t count) {
    const std::string bytes = FixedBytes(count);
    for (auto _ : state) {
        if (Scan(bytes)) return state.SkipWithError("the letters are among the bytes");
        benchmark::ClobberMemory();
    }
}

BENCHMARK_CAPTURE(ScanBytes, small, 100'000)->Name("memmem over 0.1 MB")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(ScanBytes, middle, 1'000'000)->Name("memmem over 1 MB")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(ScanBytes, large, 10'000'000)->Name("memmem over 10 MB")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
