// SPDX-License-Identifier: MIT
//
// Rewrites a long log, as after a correction. The yardstick keeps the same promises with the system's calls and the same number of bytes:
// a copy is written and synced, then its name; both versions are read and compared; the old one is linked into a directory of earlier
// versions, which is synced; the copy is renamed to the old one's name, and the directory is synced.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <utility>

#include "frame/log_file.h"
#include "frame/state.h"
#include "sample.h"
#include "started_program.h"
#include "yardstick.h"

namespace vatro::bench {

namespace {

constexpr int kRewrites = 20;
constexpr std::size_t kBytes = std::size_t{81} * kLogLines;
constexpr std::size_t kPiece = 32'768;

bool Write(const std::filesystem::path& file, const std::string& bytes) {
    const int handle = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (handle < 0) return false;
    bool written = true;
    for (std::size_t at = 0; at < bytes.size(); at += kPiece) {
        const std::size_t size = std::min(kPiece, bytes.size() - at);
        written = write(handle, bytes.data() + at, size) == static_cast<ssize_t>(size) && written;
    }
    written = fdatasync(handle) == 0 && written;
    return close(handle) == 0 && written;
}

void RewriteBare(benchmark::State& state) {
    const Workplace workplace;
    const std::filesystem::path file = workplace.Path("bare.txt");
    const std::filesystem::path copy = workplace.Path("copy.txt");
    const std::filesystem::path history = workplace.Path("history");
    std::string bytes = FixedBytes(kBytes);
    std::vector<char> old(kBytes + 1);
    std::vector<char> now(kBytes + 1);
    bool done = mkdir(history.c_str(), 0777) == 0 && Write(file, bytes);
    int versions = 0;
    for (auto _ : state) {
        ++bytes[35];
        done = done && Write(copy, bytes) && Sync(workplace.Path(""), O_DIRECTORY) && ReadFile(file, old) && ReadFile(copy, now) &&
               old != now && link(file.c_str(), (history / std::to_string(++versions)).c_str()) == 0 && Sync(history, O_DIRECTORY) &&
               std::rename(copy.c_str(), file.c_str()) == 0 && Sync(workplace.Path(""), O_DIRECTORY);
    }
    if (!done) state.SkipWithError("the copy was not written");
}

void Rewrite(benchmark::State& state) {
    const Program program(SampleLog());
    state.SetLabel("vs copy synced, compared, linked, renamed, at most 4");
    std::string line = desk().log.Lines().front();
    for (auto _ : state) {
        // The received number differs each time, as after a correction.
        std::swap(line[35], line[38]);
        desk().log.Replace(0, line);
        SkrivLog();
    }
}

BENCHMARK(RewriteBare)->Name("copy synced, compared, linked, renamed")->Iterations(kRewrites)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Rewrite)->Name("log rewritten")->Iterations(kRewrites)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
