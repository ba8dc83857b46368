// SPDX-License-Identifier: MIT
//
// Measures the time from Enter until the contact line is on the disk. The yardstick opens a file as long as the log, appends
// the same line, syncs it and closes it, using the system's calls directly.
//
// The speed of a disk depends on what it has just done. Therefore each of the three benchmarks runs all three steps in every
// round, in turn, and counts only the time of its own step.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <functional>

#include "entry/frmMain.h"
#include "frame/log_file.h"
#include "sample.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

/// The speed of a disk varies, so there are many rounds, in each of which it writes both lines.
constexpr int kRounds = 80;

/// In the order of the steps within a round.
enum class Counted { Bare, Append, Enter };
using With = Program::With;

bool AppendBare(const char* file, std::string_view line) {
    const int handle = open(file, O_WRONLY | O_APPEND | O_CLOEXEC);
    if (handle < 0) return false;
    const bool written = write(handle, line.data(), line.size()) == static_cast<ssize_t>(line.size()) && fdatasync(handle) == 0;
    return close(handle) == 0 && written;
}

double Seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void Contact(benchmark::State& state, Counted counted, With everything) {
    const std::vector<std::string> log = SampleLog();
    Program program(log, everything);
    const Workplace workplace;
    const std::string file = workplace.Path("bare.txt").string();
    WriteLines(file, log);
    const std::string line = log.back() + "\r\n";

    if (everything != With::Nothing)
        state.SetLabel("vs open, write, fdatasync, close, at most 20 µs more");
    else if (counted != Counted::Bare)
        state.SetLabel("vs open, write, fdatasync, close, at most 1.5");
    bool written = true;
    const std::function<void()> steps[]{[&] { written = AppendBare(file.c_str(), line) && written; }, [&] { AppendLog(log.back()); },
                                        [&] { program.Press("Enter"); }};
    // The first sync of a file also writes everything that was written before it.
    steps[0]();
    steps[1]();
    std::size_t first = 0;
    for (auto _ : state) {
        program.Type("DL9QQQ");
        program.Press("Space");
        program.Type("345");
        for (std::size_t i = 0; i < 3; ++i) {
            const std::size_t step = (first + i) % 3;
            const double seconds = Seconds(steps[step]);
            if (step == static_cast<std::size_t>(counted)) state.SetIterationTime(seconds);
        }
        ++first;
    }
    if (!written) state.SkipWithError("a line was not written");
    if (frmMain->log.ListCount() != kLogLines + static_cast<int>(state.iterations())) state.SkipWithError("a contact is missing");
}

void InRounds(benchmark::internal::Benchmark* measured) {
    measured->Iterations(kRounds)->Unit(benchmark::kMicrosecond)->UseManualTime();
}

BENCHMARK_CAPTURE(Contact, bare, Counted::Bare, With::Nothing)->Name("open, write, fdatasync, close")->Apply(InRounds);
BENCHMARK_CAPTURE(Contact, append, Counted::Append, With::Nothing)->Name("line appended")->Apply(InRounds);
BENCHMARK_CAPTURE(Contact, enter, Counted::Enter, With::Nothing)->Name("Enter to the synced line")->Apply(InRounds);
BENCHMARK_CAPTURE(Contact, all, Counted::Enter, With::LampsAndCopy)->Name("the same, with lamps and copy")->Apply(InRounds);

}  // namespace

}  // namespace vatro::bench
