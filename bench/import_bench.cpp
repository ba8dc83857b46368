// SPDX-License-Identifier: MIT
//
// Imports a country file with as many prefixes as the table can hold. The files it writes stay in memory, so waiting for the
// disk is not measured.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

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

void ImportCountries(benchmark::State& state) {
    World world;
    state.SetLabel("vs memmem over 1 MB, at most 2");
    for (auto _ : state) {
        ImporterCty();
        if (desk().tables.Rows().giRefPfx != kTableRows) return state.SkipWithError("the file was not imported");
    }
    ResetDesk();
}

BENCHMARK(ImportCountries)->Name("country file imported")->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace vatro::bench
