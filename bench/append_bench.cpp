// SPDX-License-Identifier: MIT
//
// From Enter to the line on the disk. The yardstick opens a file as long as the log, appends the same line, syncs and
// closes, with the calls of the system.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include "entry/frmMain.h"
#include "logbook/log_file.h"
#include "program.h"
#include "sample.h"

namespace vatro::bench {

namespace {

/// Each is a sync, so a run is short by count.
constexpr int kContacts = 300;

bool AppendBare(const char* file, std::string_view line) {
    const int handle = open(file, O_WRONLY | O_APPEND | O_CLOEXEC);
    if (handle < 0) return false;
    const bool written = write(handle, line.data(), line.size()) == static_cast<ssize_t>(line.size()) && fdatasync(handle) == 0;
    return close(handle) == 0 && written;
}

void BareAppend(benchmark::State& state) {
    const std::vector<std::string> log = SampleLog();
    const Workplace workplace;
    const std::string file = workplace.Path("bare.txt").string();
    WriteLines(file, log);
    const std::string line = log.back() + "\r\n";
    for (auto _ : state)
        if (!AppendBare(file.c_str(), line)) return state.SkipWithError("the line was not written");
}

void Append(benchmark::State& state) {
    const std::vector<std::string> log = SampleLog();
    const Program program(log);
    state.SetLabel("open, write, fdatasync, close, at most 1.2");
    for (auto _ : state) AppendLog(log.back());
}

void Enter(benchmark::State& state) {
    const std::vector<std::string> log = SampleLog();
    Program program(log);
    const int before = frmMain->List1.ListCount();
    state.SetLabel("open, write, fdatasync, close, at most 1.2");
    for (auto _ : state) {
        state.PauseTiming();
        program.Type("DL9QQQ 345");
        state.ResumeTiming();
        program.Press('\r');
    }
    if (frmMain->List1.ListCount() != before + static_cast<int>(state.iterations())) state.SkipWithError("a contact is missing");
}

BENCHMARK(BareAppend)->Name("open, write, fdatasync, close")->Iterations(kContacts)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Append)->Name("line appended")->Iterations(kContacts)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Enter)->Name("Enter to the synced line")->Iterations(kContacts)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace

}  // namespace vatro::bench
