// SPDX-License-Identifier: MIT
//
// Measures how Morse is generated. While one half of the sound buffer plays, which takes half a second, the program must fill the
// other half; a fill is compared with a plain copy of the same number of bytes. Also measures how long it takes from pressing the key
// of a text until the sound plays: the first time, when the sound card, the tone and the Morse pieces are prepared, and every later
// time.
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

void CopyHalf(benchmark::State& state) {
    std::vector<char> from(kHalfBytes, 1);
    std::vector<char> to(kHalfBytes);
    for (auto _ : state) {
        std::memcpy(to.data(), from.data(), kHalfBytes);
        benchmark::ClobberMemory();
    }
}

/// The program in mode CW with an empty log.
class Station {
public:
    Station() : program_({}) {
        program_.Type("CW");
        program_.Press("Enter");
    }
    /// The time from the key to the sound, in seconds.
    double Press(const char* key) {
        const auto start = std::chrono::steady_clock::now();
        program_.Press(key);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

private:
    Program program_;
};

/// Fills one half after the other from an endless text at the highest speed that the arrow keys allow; each half is copied into
/// a buffer.
void Fill(benchmark::State& state) {
    std::string text;
    for (int i = 0; i < 1000; ++i) text += "CQ TEST DE OZ1AB/P OZ1AB/P TEST K ";
    Keyer keyer;
    keyer.SetSpeed(60);
    keyer.MakePieces(800, 10000);
    keyer.SetText(text, 0);
    std::array<std::int16_t, kBufferSamples> buffer{};
    state.SetLabel("vs bare copy of a half, at most 4");
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
    state.SetLabel("vs memmem over 0.1 MB, at most 6");
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
    state.SetLabel("vs bare copy of a half, at most 10");
    for (auto _ : state) {
        state.SetIterationTime(station.Press("F5"));
        if (!frmCWTX->Visible()) return state.SkipWithError("nothing is sent");
        station.Press("Esc");
    }
}

BENCHMARK(CopyHalf)->Name("bare copy of a half")->Unit(benchmark::kMicrosecond);
BENCHMARK(Fill)->Name("half of the sound buffer filled")->Unit(benchmark::kMicrosecond);
BENCHMARK(FirstKey)->Name("first F5 to the playing buffer")->Unit(benchmark::kMicrosecond)->UseManualTime();
BENCHMARK(NextKey)->Name("F5 to the playing buffer")->Unit(benchmark::kMicrosecond)->UseManualTime();

}  // namespace

}  // namespace vatro::bench
