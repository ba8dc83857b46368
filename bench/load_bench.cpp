// SPDX-License-Identifier: MIT
//
// Loads a log, with its list, marks and counters; and changes the band, which loads a log and prepares the form.
#include <benchmark/benchmark.h>

#include "entry/frmMain.h"
#include "entry/next_contact.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "sample.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

void LoadLog(benchmark::State& state) {
    const Program program(SampleLog());
    state.SetLabel("vs memmem over 1 MB, at most 5");
    for (auto _ : state) {
        IndlæsLogfil();
        if (frmMain->log.ListCount() != kLogLines) return state.SkipWithError("the log was not read");
    }
}

/// Chooses the band that is already in use again, which reloads the log like any other band change.
void ChangeBand(benchmark::State& state) {
    constexpr int k80m = 5;
    const Program program(SampleLog());
    state.SetLabel("vs memmem over 1 MB, at most 5");
    for (auto _ : state) {
        ChangeBandMode(k80m);
        if (frmMain->log.ListCount() != kLogLines) return state.SkipWithError("the log was not read");
    }
}

BENCHMARK(LoadLog)->Name("log loaded")->Unit(benchmark::kMillisecond);
BENCHMARK(ChangeBand)->Name("band changed")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
