// SPDX-License-Identifier: MIT
//
// Looks up a call whose country is not found, so that both searches of the table must run to their end. The yardstick looks at
// every prefix once.
#include <benchmark/benchmark.h>

#include "sample.h"
#include "scan.h"
#include "started_program.h"
#include "tables/worked.h"

namespace vatro::bench {

namespace {

void ScanForCountry(benchmark::State& state) {
    const Program program({});
    for (auto _ : state) benchmark::DoNotOptimize(ScanTable('Q'));
}

void NoCountry(benchmark::State& state) {
    const Program program({});
    state.SetLabel("vs scan of prefixes, at most 2");
    CountryStatus status;
    for (auto _ : state) {
        status = ShownCountry("QQ9QQQ");
        benchmark::DoNotOptimize(status.text.data());
    }
    if (!status.unknown) state.SkipWithError("the country was found");
}

BENCHMARK(ScanForCountry)->Name("scan of prefixes")->Unit(benchmark::kMicrosecond);
BENCHMARK(NoCountry)->Name("country not found")->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace vatro::bench
