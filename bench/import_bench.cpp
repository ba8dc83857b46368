// SPDX-License-Identifier: MIT
//
// Imports a country file with as many prefixes as the table can hold. The files it writes stay in memory, so waiting for the
// disk is not measured. The yardstick reads the same file and splits it into its items.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "country/cty_file.h"
#include "country/tables.h"
#include "disk_files.h"
#include "frame/state.h"
#include "frame/station.h"
#include "program.h"
#include "sample.h"
#include "started_program.h"
#include "tables/frmCtyDat.h"
#include "tables/import_country_file.h"
#include "unattended.h"

namespace vatro::bench {

namespace {

constexpr int kCountries = 345;
constexpr int kItemsPerLine = 9;

/// Reads from the disk and keeps written files in memory.
class ReadingFiles : public DiskFiles {
public:
    void Open(int number, std::string_view path, FileMode mode) override {
        if (mode == FileMode::Input) return DiskFiles::Open(number, path, mode);
        written_.clear();
    }
    void PrintLine(int, std::string_view text) override { written_.append(text).append("\r\n", 2); }

private:
    std::string written_;
};

std::string Letters(int number) {
    std::string text;
    for (int i = 0; i < 3; ++i, number /= 26) text += static_cast<char>('A' + number % 26);
    return text;
}

/// kTableRows items in unsorted order, spread over the countries; one item in eight has a zone.
std::vector<std::string> SampleCtyFile() {
    std::vector<std::string> lines;
    int item = 0;
    for (int country = 0; country < kCountries; ++country) {
        lines.push_back("Country Of The Bench:     14:  27:  EU:   56.00:   -10.00:    -1.0:  " + Letters(country) + ":");
        const int last = kTableRows * (country + 1) / kCountries;
        for (int inLine = 0; item < last; ++item, ++inLine) {
            if (inLine % kItemsPerLine == 0) lines.emplace_back("    ");
            lines.back() += Letters(item * 7919 % 17576) + (item % 8 == 0 ? "(15)" : "") + (item + 1 == last ? ";" : ",");
        }
    }
    return lines;
}

struct World {
    World() {
        WriteLines(workplace.Path("cty.dat"), SampleCtyFile());
        desk().gsFDLib = NativeText(workplace.Path(""));
        memory.Install(unattended, files);
        BeginProgram();
        Dispatch([] { frmCtyDat.Load(); });
    }
    ~World() { EndProgram(); }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    Workplace workplace;
    ReadingFiles files;
    MemoryPlatform memory;
    Unattended unattended;
};

void SplitFile(benchmark::State& state) {
    World world;
    Files& files = platform().files;
    for (auto _ : state) {
        std::vector<std::string> items;
        files.Open(1, PathIn(desk().gsFDLib, "cty.dat"), FileMode::Input);
        while (!files.EndOfFile(1)) {
            const std::string headerLine = files.LineInput(1);
            const CtyHeader header = ReadCtyHeader(headerLine);
            std::string line;
            do {
                line = files.LineInput(1);
                CtyEntryReader rest(line, header);
                while (rest.HasMore()) items.emplace_back(rest.Next().text);
            } while (!line.ends_with(';'));
        }
        files.Close(1);
        if (items.size() != kTableRows) return state.SkipWithError("the file was not read");
        benchmark::DoNotOptimize(items.data());
    }
}

void Import(benchmark::State& state) {
    World world;
    state.SetLabel("vs country file into items, at most 2");
    for (auto _ : state) {
        ImporterCty();
        if (desk().tables.Rows().giRefPfx != kTableRows) return state.SkipWithError("the file was not imported");
    }
    ResetDesk();
}

BENCHMARK(SplitFile)->Name("country file into items")->Unit(benchmark::kMicrosecond);
BENCHMARK(Import)->Name("country file imported")->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace vatro::bench
