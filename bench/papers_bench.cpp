// SPDX-License-Identifier: MIT
//
// Makes the papers of ten logs of 2,000 contacts, as the menu does.
#include <benchmark/benchmark.h>

#include "entry/frmMain.h"
#include "paper_station.h"
#include "program.h"

namespace vatro::bench {

namespace {

/// Makes what one menu entry makes. The last file written must have `lines` lines, and the printer must get at least `printed`
/// characters.
void MakePaper(benchmark::State& state, MenuItem MainMenu::*entry, std::size_t lines, std::size_t printed) {
    const PaperStation station;
    state.SetLabel("vs memmem over 10 MB, at most 2");
    for (auto _ : state) PaperStation::Choose((*frmMain).*entry);
    if (!ProgramRuns()) return state.SkipWithError("the paper stopped the program");
    if (station.Lines() != lines || station.Printed() < printed) state.SkipWithError("another paper was made");
}

void ListErrors(benchmark::State& state) {
    const PaperStation station;
    state.SetLabel("vs memmem over 10 MB, at most 4");
    for (auto _ : state) PaperStation::Choose(frmMain->mnuFilerDanFejlliste);
    // For each log there is a heading and a line that says it has no errors.
    if (station.Lines() != 2 + 4 * kTenLogs.size()) state.SkipWithError("errors were found");
}

constexpr std::size_t kAll = kPaperContacts * kTenLogs.size();

BENCHMARK_CAPTURE(MakePaper, sheets, &MainMenu::mnuEfterAlt, 26, 0)->Name("sheets, check sheet, summary")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MakePaper, page, &MainMenu::mnuFilerDanHtml, 5 + 10 * 8 + kAll + 26, 0)->Name("web page")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MakePaper, adif, &MainMenu::mnuFilerEksportAdif, 1 + kAll, 0)->Name("ADIF file")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MakePaper, print, &MainMenu::mnuUdskrivAlt, 0, kAll * 80)->Name("papers printed")->Unit(benchmark::kMillisecond);
BENCHMARK(ListErrors)->Name("error list of ten logs")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
