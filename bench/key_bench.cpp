// SPDX-License-Identifier: MIT
//
// Measures the keys in the call field: a character, which shows the country, the earlier contacts and the number to send; the first
// character for which earlier contacts are searched; and leaving the field, which looks for a duplicate. The calls do not occur in the
// log, so no search can stop early.
#include <benchmark/benchmark.h>

#include <chrono>
#include <string_view>

#include "entry/frmB4.h"
#include "frame/state.h"
#include "sample.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

/// Presses a key and deletes its character again.
void Key(benchmark::State& state, std::string_view call) {
    Program program(SampleLog());
    program.Type(call);
    if (frmB4->earlierContacts.ListCount() != 0) return state.SkipWithError("the call stands in the log");
    state.SetLabel("vs memmem over 0.1 MB, at most 0.6");
    for (auto _ : state) {
        program.Type("Q");
        program.Press("Backspace");
    }
}

/// How often a key is measured whose preparation takes a hundred times as long.
constexpr int kPresses = 20'000;

/// Counts only the last of these keys.
template <class Prepare, class Press>
void LastKey(benchmark::State& state, Prepare prepare, Press press) {
    for (auto _ : state) {
        prepare();
        const auto start = std::chrono::steady_clock::now();
        press();
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

void WorkedBefore(benchmark::State& state) {
    Program program(SampleLog());
    state.SetLabel("vs memmem over 0.1 MB, at most 0.3; goal 60 µs");
    LastKey(
        state,
        [&] {
            program.Press("Esc");
            program.Type("Q");
        },
        [&] { program.Type("/"); });
    if (frmB4->earlierContacts.ListCount() != 0) state.SkipWithError("the call stands in the log");
}

void Duplicate(benchmark::State& state) {
    Program program(SampleLog());
    state.SetLabel("vs memmem over 0.1 MB, at most 0.02; goal 20 µs");
    LastKey(
        state,
        [&] {
            program.Press("Esc");
            program.Type("DL9QQQ");
        },
        [&] { program.Press("Space"); });
    if (desk().gbDupe) state.SkipWithError("the call stands in the log");
}

BENCHMARK_CAPTURE(Key, known, "DL9QQQ")->Name("key and its deletion, known country")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Key, unknown, "QQ9QQQ")->Name("key and its deletion, unknown prefix")->Unit(benchmark::kMicrosecond);
BENCHMARK(WorkedBefore)->Name("worked-before search")->Iterations(kPresses)->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(Duplicate)->Name("duplicate check")->Iterations(kPresses)->Unit(benchmark::kMicrosecond)->UseManualTime();

}  // namespace

}  // namespace vatro::bench
