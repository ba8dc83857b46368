// SPDX-License-Identifier: MIT
#include "paper_station.h"

#include <vector>

#include "country/lookup.h"
#include "frame/state.h"
#include "frame/station.h"
#include "log/contact_line.h"
#include "program.h"
#include "sample.h"
#include "score/points.h"

namespace vatro::bench {

namespace {

/// The check sheet has room for a hundred multipliers.
constexpr int kCountries = 80;

/// A log without errors, made of calls from the sample.
std::vector<std::string> FaultlessLog(const std::vector<std::string>& sample, std::string_view mode) {
    std::vector<std::string> log;
    WorkedCountries countries(desk().tables);
    int multipliers = 0;
    for (const std::string& line : sample) {
        if (log.size() == kPaperContacts) break;
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

}  // namespace

PaperStation::PaperStation() : program_({}), printer_(noPrinter_) {
    static const std::vector<std::string> sample = SampleLog();
    const Platform& had = platform();
    InstallPlatform({had.dialogs, had.settings, files_, had.clock, had.help, had.instance, had.sound, printer_, had.version});
    for (const LogId& log : kTenLogs) WriteLines(Path(log), FaultlessLog(sample, log.mode));
}

void PaperStation::Choose(MenuItem& item) {
    Dispatch([&item] { item.Choose(); });
}

void PaperStation::ReadingFiles::Open(int number, std::string_view path, FileMode mode) {
    if (mode == FileMode::Input) return DiskFiles::Open(number, path, mode);
    piece_.clear();
    lines = 0;
}

void PaperStation::ReadingFiles::PrintLine(int, std::string_view text) {
    constexpr std::size_t kPieceSize = 32'768;
    if (piece_.size() > kPieceSize) piece_.clear();
    piece_.append(text).append("\r\n");
    ++lines;
}

}  // namespace vatro::bench
