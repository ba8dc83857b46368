// SPDX-License-Identifier: MIT
//
// Rewrites a long log, as after a correction. The yardstick writes the same lines to a copy with the system's calls, syncs the
// copy, deletes the old file, renames the copy to its name and syncs the directory.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

#include "entry/frmMain.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "sample.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

constexpr int kRuns = 20;
constexpr std::size_t kPiece = 32'768;

bool Sync(const std::filesystem::path& path, int flags) {
    const int handle = open(path.c_str(), flags | O_CLOEXEC);
    if (handle < 0) return false;
    const bool synced = fsync(handle) == 0;
    return close(handle) == 0 && synced;
}

bool Write(const std::filesystem::path& file, const std::vector<std::string>& lines) {
    const int handle = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (handle < 0) return false;
    bool written = true;
    std::string piece;
    const auto flush = [&] {
        written = write(handle, piece.data(), piece.size()) == static_cast<ssize_t>(piece.size()) && written;
        piece.clear();
    };
    for (const std::string& line : lines) {
        piece.append(line).append("\r\n");
        if (piece.size() >= kPiece) flush();
    }
    flush();
    written = fdatasync(handle) == 0 && written;
    return close(handle) == 0 && written;
}

void RewriteBare(benchmark::State& state) {
    const Workplace workplace;
    const std::vector<std::string> log = SampleLog();
    const std::filesystem::path file = workplace.Path("bare.txt");
    const std::filesystem::path copy = workplace.Path("copy.txt");
    WriteLines(file, log);
    for (auto _ : state) {
        const bool done = Write(copy, log) && unlink(file.c_str()) == 0 && std::rename(copy.c_str(), file.c_str()) == 0 &&
                          Sync(file.parent_path(), O_RDONLY | O_DIRECTORY);
        if (!done) return state.SkipWithError("the copy was not written");
    }
}

void Rewrite(benchmark::State& state) {
    const Program program(SampleLog());
    state.SetLabel("vs 10000 lines written, synced, renamed, at most 2");
    std::string line = desk().log.Lines().front();
    for (auto _ : state) {
        // The received number differs each time, as after a correction.
        std::swap(line[35], line[38]);
        desk().log.Replace(0, line);
        SkrivLog();
    }
}

BENCHMARK(RewriteBare)->Name("10000 lines written, synced, renamed")->Iterations(kRuns)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Rewrite)->Name("log rewritten")->Iterations(kRuns)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
