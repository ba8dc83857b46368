// SPDX-License-Identifier: MIT
//
// Makes the papers of ten logs of 2,000 contacts, as the menu does. The files they write stay in memory, so waiting for the
// disk is not measured, and the printer takes no time. The yardstick reads the ten files into lines; the yardstick of the error
// list also looks up every country that the list needs.
#include <benchmark/benchmark.h>

#include <fstream>
#include <string>
#include <vector>

#include "country/lookup.h"
#include "disk_files.h"
#include "entry/frmMain.h"
#include "frame/log_file.h"
#include "frame/state.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "page.h"
#include "program.h"
#include "sample.h"
#include "score/points.h"
#include "started_program.h"

namespace vatro::bench {

namespace {

constexpr std::size_t kContacts = 2000;
/// The check sheet has room for a hundred multipliers.
constexpr int kCountries = 80;

/// A printer that keeps nothing and on which everything fits.
class NoPrinter : public PageDevice {
public:
    double Width() const override { return 595; }
    double Height() const override { return 842; }
    double TextWidth(std::string_view text, const Font& font) const override { return 0.6 * font.size * static_cast<double>(text.size()); }
    double TextHeight(const Font& font) const override { return 1.2 * font.size; }
    void BeginJob() override {}
    void Place(double, double, const Font&, std::string_view text) override { printed += text.size(); }
    void NextPage() override {}
    void EndJob() override {}
    std::size_t printed = 0;
};

/// Reads from the disk. Of the file being written it keeps only the last piece in memory.
class ReadingFiles : public DiskFiles {
public:
    void Open(int number, std::string_view path, FileMode mode) override {
        if (mode == FileMode::Input) return DiskFiles::Open(number, path, mode);
        piece_.clear();
        lines = 0;
    }
    void PrintLine(int, std::string_view text) override {
        constexpr std::size_t kPieceSize = 32'768;
        if (piece_.size() > kPieceSize) piece_.clear();
        piece_.append(text).append("\r\n");
        ++lines;
    }
    /// Belongs to the file written last.
    std::size_t lines = 0;

private:
    std::string piece_;
};

/// A log without errors, made of calls from the sample.
std::vector<std::string> FaultlessLog(const std::vector<std::string>& sample, std::string_view mode) {
    std::vector<std::string> log;
    WorkedCountries countries(desk().tables);
    int multipliers = 0;
    for (const std::string& line : sample) {
        if (log.size() == kContacts) break;
        Contact qso;
        qso.call = kCall.TrimmedOf(line);
        if (multipliers == kCountries && countries.LandWkd(qso.call, MarkAction::Test).changed) continue;
        const WorkedCountries::Result country = countries.LandWkd(qso.call, MarkAction::Mark);
        if (country.changed) ++multipliers;
        qso.multiplier = country.prefix;
        qso.point = BeregnPoint(qso.call, desk().tables, desk().stations, desk().gbVisLand);
        qso.time = kTime.Of(line);
        qso.reportSent = qso.reportReceived = mode == "CW" ? "599" : "59";
        qso.numberSent = kNumberSent.Of(line);
        qso.numberReceived = kNumberReceived.Of(line);
        qso.operatorCall = "OZ1QN";
        qso.qsoMode = mode;
        qso.date = kDate.Of(line);
        log.push_back(QsoLine(qso, mode));
    }
    return log;
}

/// The program with its ten logs.
class Station {
public:
    Station() : program_({}), printer_(noPrinter_) {
        static const std::vector<std::string> sample = SampleLog();
        const Platform& had = platform();
        InstallPlatform({had.dialogs, had.settings, files, had.clock, had.help, had.instance, had.sound, printer_, had.version});
        for (const LogId& log : kTenLogs) WriteLines(Path(log), FaultlessLog(sample, log.mode));
    }
    static std::string Path(const LogId& log) { return LogPath(log.band, log.mode); }
    static void Choose(MenuItem& item) {
        Dispatch([&item] { item.Choose(); });
    }
    std::size_t Printed() const { return noPrinter_.printed; }
    ReadingFiles files;

private:
    Program program_;
    NoPrinter noPrinter_;
    PageSurface printer_;
};

std::vector<std::string> Lines(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

void ReadTen(benchmark::State& state) {
    const Station station;
    for (auto _ : state) {
        for (const LogId& log : kTenLogs)
            if (Lines(Station::Path(log)).size() != kContacts) return state.SkipWithError("a log was not read");
    }
}

/// Makes what one menu entry makes. The last file written must have `lines` lines, and the printer must get at least `printed`
/// characters.
void MakePaper(benchmark::State& state, MenuItem MainMenu::*entry, std::size_t lines, std::size_t printed) {
    const Station station;
    state.SetLabel("vs ten files into lines, at most 6");
    for (auto _ : state) Station::Choose((*frmMain).*entry);
    if (!ProgramRuns()) return state.SkipWithError("the paper stopped the program");
    if (station.files.lines != lines || station.Printed() < printed) state.SkipWithError("another paper was made");
}

void LookUp(benchmark::State& state) {
    const Station station;
    std::vector<std::vector<std::string>> calls;
    for (const LogId& log : kTenLogs) {
        calls.emplace_back();
        for (const std::string& line : Lines(Station::Path(log))) calls.back().emplace_back(kCall.TrimmedOf(line));
    }
    WorkedCountries countries(desk().tables);
    for (auto _ : state) {
        for (const std::vector<std::string>& log : calls) {
            countries.ResetLande();
            for (const std::string& call : log) benchmark::DoNotOptimize(countries.LandWkd(call, MarkAction::Mark));
        }
    }
}

void ListErrors(benchmark::State& state) {
    const Station station;
    state.SetLabel("vs country lookups of ten logs, at most 2");
    for (auto _ : state) Station::Choose(frmMain->mnuFilerDanFejlliste);
    // For each log there is a heading and a line that says it has no errors.
    if (station.files.lines != 2 + 4 * kTenLogs.size()) state.SkipWithError("errors were found");
}

constexpr std::size_t kAll = kContacts * kTenLogs.size();

BENCHMARK(ReadTen)->Name("ten files into lines")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MakePaper, sheets, &MainMenu::mnuEfterAlt, 26, 0)->Name("sheets, check sheet, summary")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MakePaper, page, &MainMenu::mnuFilerDanHtml, 5 + 10 * 8 + kAll + 26, 0)->Name("web page")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MakePaper, adif, &MainMenu::mnuFilerEksportAdif, 1 + kAll, 0)->Name("ADIF file")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(MakePaper, print, &MainMenu::mnuUdskrivAlt, 0, kAll * 80)->Name("papers printed")->Unit(benchmark::kMillisecond);
BENCHMARK(LookUp)->Name("country lookups of ten logs")->Unit(benchmark::kMillisecond);
BENCHMARK(ListErrors)->Name("error list of ten logs")->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace vatro::bench
