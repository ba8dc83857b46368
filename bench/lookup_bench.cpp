// SPDX-License-Identifier: MIT
//
// Looks up countries as the status bar does: of the calls of a log, and of calls whose prefix is not in the table.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "log/contact_line.h"
#include "sample.h"
#include "started_program.h"
#include "tables/worked.h"

namespace vatro::bench {

namespace {

constexpr int kCalls = 1000;

std::vector<std::string> SampleCalls() {
    std::vector<std::string> calls;
    for (const std::string& line : SampleLog(kCalls)) calls.emplace_back(kCall.TrimmedOf(line));
    return calls;
}

void LookUp(benchmark::State& state, const std::vector<std::string>& calls, bool unknown) {
    const Program program({});
    bool wrong = false;
    for (auto _ : state)
        for (const std::string& call : calls) wrong = ShownCountry(call).unknown != unknown || wrong;
    if (wrong) state.SkipWithError("another country was found");
}

void Countries(benchmark::State& state) {
    state.SetLabel("vs memmem over 1 MB, at most 1");
    LookUp(state, SampleCalls(), false);
}

void NoCountries(benchmark::State& state) {
    state.SetLabel("vs memmem over 0.1 MB, at most 4");
    std::vector<std::string> calls = SampleCalls();
    for (std::string& call : calls) call.replace(0, 2, "QQ");
    LookUp(state, calls, true);
}

BENCHMARK(Countries)->Name("countries of 1000 calls")->Unit(benchmark::kMicrosecond);
BENCHMARK(NoCountries)->Name("countries of 1000 calls, none found")->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace vatro::bench
