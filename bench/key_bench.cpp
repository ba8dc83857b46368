// SPDX-License-Identifier: MIT
//
// Measures one key press in the call field, which shows the country, the earlier contacts and the number to send. The yardstick
// looks once at the call of every log line and once at every prefix.
//
// The call does not occur in the log, so the search cannot stop early. Each round presses a key, deletes the character again,
// and makes two scans.
#include <benchmark/benchmark.h>

#include "entry/frmB4.h"
#include "entry/frmMain.h"
#include "sample.h"
#include "scan.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

void ScanForKey(benchmark::State& state) {
    const Program program(SampleLog());
    const std::vector<std::string>& lines = frmMain->log.Items();
    for (auto _ : state) {
        for (const char sought : {'Q', 'Z'}) {
            benchmark::DoNotOptimize(ScanLog(lines, sought));
            benchmark::DoNotOptimize(ScanTable(sought));
        }
    }
}

void Key(benchmark::State& state, std::string_view call) {
    Program program(SampleLog());
    program.Type(call);
    if (frmB4->earlierContacts.ListCount() != 0) return state.SkipWithError("the call stands in the log");
    state.SetLabel("vs scan of calls and prefixes, at most 2");
    for (auto _ : state) {
        program.Type("Q");
        program.Press("Backspace");
    }
}

BENCHMARK(ScanForKey)->Name("scan of calls and prefixes")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Key, known, "DL9QQQ")->Name("key, known country")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Key, unknown, "QQ9QQQ")->Name("key, unknown prefix")->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace vatro::bench
