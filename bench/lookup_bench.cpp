// SPDX-License-Identifier: MIT
//
// A country that is not found, which both searches of the table have to be sure of. The yardstick looks at every prefix
// once.
#include <benchmark/benchmark.h>

#include "country/lookup.h"
#include "sample.h"
#include "scan.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

void ScanForCountry(benchmark::State& state) {
    const Program program({});
    for (auto _ : state) benchmark::DoNotOptimize(ScanTable('Q'));
}

void NoCountry(benchmark::State& state) {
    const Program program({});
    state.SetLabel("vs scan of prefixes, at most 2");
    std::string status;
    for (auto _ : state) {
        LandStatusTekst("QQ9QQQ", status);
        benchmark::DoNotOptimize(status.data());
    }
    if (!IsUnknown(status)) state.SkipWithError("the country was found");
}

BENCHMARK(ScanForCountry)->Name("scan of prefixes")->Unit(benchmark::kMicrosecond);
BENCHMARK(NoCountry)->Name("country not found")->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace vatro::bench
