// SPDX-License-Identifier: MIT
//
// Morse on time. While one half of the sound buffer plays, which takes half a second, the other one must be filled: a fill is
// held against that time, and against a bare copy of as many bytes. And how long the key of a text takes until the sound plays:
// the first time, when card, tone and pieces are made, and from then on.
#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <cstring>

#include "keyer/frmCWTX.h"
#include "morse/keyer.h"
#include "program.h"
#include "sample.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

constexpr std::size_t kHalfBytes = kHalfSamples * sizeof(std::int16_t);
constexpr double kHalfSecond = 0.5;

void HalfSecond(benchmark::State& state) {
    for (auto _ : state) state.SetIterationTime(kHalfSecond);
}

void CopyHalf(benchmark::State& state) {
    std::vector<char> from(kHalfBytes, 1);
    std::vector<char> to(kHalfBytes);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), kHalfBytes);
        benchmark::ClobberMemory();
    }
}

/// The program in CW, with an empty log.
class Station {
public:
    Station() : program_({}) {
        program_.Type("CW");
        program_.Press("Enter");
    }
    /// Seconds that the key takes.
    double Press(const char* key) {
        const auto start = std::chrono::steady_clock::now();
        program_.Press(key);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

private:
    Program program_;
};

/// Half after half of a text that does not end, at the highest speed of the arrows, each copied into a buffer.
void Fill(benchmark::State& state, const char* yardstick) {
    std::string text;
    for (int i = 0; i < 1000; ++i) text += "CQ TEST DE OZ1AB/P OZ1AB/P TEST K ";
    Keyer keyer;
    keyer.SetSpeed(60);
    keyer.MakePieces(800, 10000);
    keyer.SetText(text, 0);
    std::array<std::int16_t, kBufferSamples> buffer{};
    state.SetLabel(yardstick);
    Half half = Half::First;
    for (auto _ : state) {
        const FilledHalf filled = keyer.Fill(half);
        std::memcpy(&buffer[static_cast<std::size_t>(filled.first)], filled.samples.data(), filled.samples.size_bytes());
        benchmark::ClobberMemory();
        half = half == Half::First ? Half::Second : Half::First;
        if (!filled.active) keyer.Begin();
    }
}

void FirstKey(benchmark::State& state) {
    Station station;
    state.SetLabel("vs half a second, at most 0.01");
    for (auto _ : state) {
        state.SetIterationTime(station.Press("F5"));
        if (!frmCWTX->Visible()) return state.SkipWithError("nothing is sent");
        station.Press("Esc");
        Dispatch([] { frmCWTX.Unload(); });
    }
}

void NextKey(benchmark::State& state) {
    Station station;
    station.Press("F5");
    station.Press("Esc");
    state.SetLabel("vs half a second, at most 0.01");
    for (auto _ : state) {
        state.SetIterationTime(station.Press("F5"));
        if (!frmCWTX->Visible()) return state.SkipWithError("nothing is sent");
        station.Press("Esc");
    }
}

BENCHMARK(HalfSecond)->Name("half a second")->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(CopyHalf)->Name("bare copy of a half")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fill, time, "vs half a second, at most 0.01")->Name("half of the sound buffer filled")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fill, copy, "vs bare copy of a half, at most 3")->Name("the same fill")->Unit(benchmark::kMicrosecond);
BENCHMARK(FirstKey)->Name("first F5 to the playing buffer")->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(NextKey)->Name("F5 to the playing buffer")->Unit(benchmark::kMicrosecond)->UseManualTime();

}  // namespace

}  // namespace vatro::bench
