// SPDX-License-Identifier: MIT
//
// Measures the check of the log directory at every start. It compares each log with its newest earlier version, so the
// yardstick reads both with the system's calls.
#include <benchmark/benchmark.h>

#include "frame/log_file.h"
#include "recovery.h"
#include "sample.h"
#include "started_program.h"
#include "yardstick.h"

namespace vatro::bench {

namespace {

/// A long field day: ten logs of a thousand contacts.
constexpr std::size_t kContactsOfALog = 1000;
constexpr DateTime kNow{2026, 9, 6, 10, 0, 0, 0};

/// Ten logs that have been corrected, with their earlier versions.
class TenLogs {
public:
    TenLogs() : history_(Directory(), workplace_.Path("state"), [] { return kNow; }) {
        std::filesystem::create_directory(Directory());
        std::filesystem::create_directory(workplace_.Path("data"));
        WriteTables(workplace_.Path("data"));
        std::vector<std::string> lines = SampleLog();
        lines.resize(kContactsOfALog);
        for (const auto& [band, mode] : kTenLogs) {
            const std::filesystem::path log = Directory() / LogName(band, mode);
            WriteLines(log, lines);
            const History::Version version = history_.Add(log, History::Keep::ByAge);
            std::filesystem::remove(log);
            lines[kContactsOfALog / 2][35] = '9';
            WriteLines(log, lines);
            files_.push_back(log);
            files_.push_back(version.path);
        }
    }
    std::filesystem::path Directory() const { return workplace_.Path("log"); }
    std::filesystem::path Tables() const { return workplace_.Path("data"); }
    const std::vector<std::filesystem::path>& Files() const { return files_; }
    const History& Versions() const { return history_; }

private:
    Workplace workplace_;
    History history_;
    std::vector<std::filesystem::path> files_;
};

void ReadBare(benchmark::State& state) {
    const TenLogs logs;
    std::vector<char> buffer(65'536);
    for (auto _ : state) {
        for (const std::filesystem::path& file : logs.Files())
            if (!ReadFile(file, buffer)) return state.SkipWithError("a file was not read");
    }
}

void LookThrough(benchmark::State& state) {
    const TenLogs logs;
    state.SetLabel("vs twenty files read, at most 40");
    for (auto _ : state) {
        if (!LookForDamage({logs.Directory(), logs.Tables(), "80mSSB", kNow}, logs.Versions()).empty())
            return state.SkipWithError("something is wrong with a sound directory");
    }
}

BENCHMARK(ReadBare)->Name("twenty files read")->Unit(benchmark::kMillisecond);
BENCHMARK(LookThrough)->Name("log directory looked through")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
