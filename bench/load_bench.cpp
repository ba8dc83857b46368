// SPDX-License-Identifier: MIT
//
// Loads a log, with its list, marks and counters; and changes the band, which loads a log and prepares the form. The yardstick
// reads the same file into lines.
#include <benchmark/benchmark.h>

#include <fstream>

#include "entry/frmMain.h"
#include "entry/next_contact.h"
#include "frame/band_mode.h"
#include "frame/log_file.h"
#include "sample.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

void ReadLines(benchmark::State& state) {
    const Program program(SampleLog());
    for (auto _ : state) {
        std::ifstream in(program.LogFile(), std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(in, line);) lines.push_back(line);
        if (lines.size() != static_cast<std::size_t>(kLogLines)) return state.SkipWithError("the file was not read");
    }
}

void LoadLog(benchmark::State& state) {
    const Program program(SampleLog());
    state.SetLabel("vs file into lines, at most 3");
    for (auto _ : state) {
        IndlæsLogfil();
        if (frmMain->log.ListCount() != kLogLines) return state.SkipWithError("the log was not read");
    }
}

/// Chooses the band that is already in use again, which reloads the log like any other band change.
void ChangeBand(benchmark::State& state) {
    constexpr int k80m = 5;
    const Program program(SampleLog());
    state.SetLabel("vs file into lines, at most 3");
    for (auto _ : state) {
        ChangeBandMode(k80m);
        if (frmMain->log.ListCount() != kLogLines) return state.SkipWithError("the log was not read");
    }
}

BENCHMARK(ReadLines)->Name("file into lines")->Unit(benchmark::kMillisecond);
BENCHMARK(LoadLog)->Name("log loaded")->Unit(benchmark::kMillisecond);
BENCHMARK(ChangeBand)->Name("band changed")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
