// SPDX-License-Identifier: MIT
//
// Imports a long CT log. Each contact is on the disk before the next one is read, so the yardstick appends and syncs as many
// lines, using the system's calls directly.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include "entry/frmMain.h"
#include "exchange/ct_import.h"
#include "names.h"
#include "sample.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

constexpr int kImported = 5000;

bool Append(const std::filesystem::path& file, const std::string& line) {
    const int handle = open(file.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (handle < 0) return false;
    const bool written = write(handle, line.data(), line.size()) == static_cast<ssize_t>(line.size()) && fdatasync(handle) == 0;
    return close(handle) == 0 && written;
}

void AppendBare(benchmark::State& state) {
    const Workplace workplace;
    std::vector<std::string> lines = SampleLog(kImported);
    for (std::string& line : lines) line += "\r\n";
    for (auto _ : state)
        for (const std::string& line : lines)
            if (!Append(workplace.Path("bare.txt"), line)) return state.SkipWithError("a line was not written");
}

void ImportCt(benchmark::State& state) {
    const Program program({});
    const std::filesystem::path file = program.Path("felt.40");
    WriteLines(file, CtLog(kImported));
    state.SetLabel("vs 5000 lines appended and synced, at most 2.5");
    for (auto _ : state) {
        ImporterCt(NativeText(file));
        if (frmMain->log.ListCount() != kImported) return state.SkipWithError("contacts are missing");
    }
}

BENCHMARK(AppendBare)->Name("5000 lines appended and synced")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(ImportCt)->Name("CT log of 5000 lines imported")->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
