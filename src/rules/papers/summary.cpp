// SPDX-License-Identifier: MIT
#include "papers/summary.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "columns.h"
#include "errors.h"
#include "log/contact_line.h"
#include "numbers.h"

namespace vatro {

namespace {

constexpr std::string_view kImported = "CT-IMP";
constexpr std::string_view kDefaultPhone = "12345678";
constexpr std::size_t kZone = 14;

constexpr std::string_view WithoutTrailingBlanks(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool IsNewOperator(std::string_view Operators, std::string_view operatorCall) {
    if (operatorCall == kImported) return false;
    // In an empty list nothing counts as found, not even the empty text.
    return Operators.empty() || Operators.find(operatorCall) == std::string_view::npos;
}

std::string StationName(const Stations& stations, std::string_view ownCall) {
    for (int i = 1; i <= stations.StationsInUse(); ++i) {
        const std::string_view line = stations.EDRstn[static_cast<std::size_t>(i)].Linje.Padded();
        const std::string call = std::string(WithoutTrailingBlanks(line.substr(0, kEdrCall))) + "/P";
        if (call == ownCall) return std::string(line.substr(kEdrCall + 1));
    }
    return {};
}

/// Pads the line with blanks, at least one, to the next print zone (a fixed tab stop).
std::string ToNextZone(std::string line) {
    line.resize((line.size() / kZone + 1) * kZone, ' ');
    return line;
}

constexpr BandColumns kFileColumns{"       @@@@@ x ", "@@@@@@@@"};

void WriteBand(LineSink& paper, const PaperContext& context, const Tally& tally, std::size_t bandNumber) {
    constexpr std::size_t kBlanksToEquipment = 49;
    const Equipment& equipment = context.equipment[bandNumber];
    paper.Write(BandRow(kFileColumns, bandNumber, " CW   ", tally.CW(bandNumber)).append(kBlanksToEquipment, ' ') + equipment.radio + "/" +
                equipment.antenna);
    const LogSum& band = tally.band[bandNumber];
    paper.Write(BandRow(kFileColumns, bandNumber, " SSB  ", tally.SSB(bandNumber)) + InTemplate("         @@@@@ x ", band.Mults) +
                InTemplate("      @@@@@@ = ", band.Points) + InTemplate("      @@@@@@@@@", band.Score));
}

void WriteTotal(LineSink& paper, const Tally& tally) {
    constexpr std::size_t kBlanksToTotals = 40;
    paper.Write(("Total:       " + InTemplate("@@@@@", tally.TotalQSOs)).append(kBlanksToTotals, ' ') +
                InTemplate("@@@@@@ x ", tally.Total.Mults) + InTemplate("     @@@@@@@ = ", tally.Total.Points) +
                InTemplate("      @@@@@@@@@", tally.Total.Score));
}

}  // namespace

std::string BandRow(const BandColumns& columns, std::size_t bandNumber, std::string_view mode, const BandSum& sum) {
    return std::string(kMegahertz[bandNumber])
        .append(mode)
        .append(InTemplate("@@@@@", sum.QSOs))
        .append(InTemplate(columns.mults, sum.Mults))
        .append(InTemplate("@@@@@@ = ", sum.Points))
        .append(InTemplate(columns.score, sum.Score));
}

LogCount SumLog(LogReader& logs, const LogId& log, std::string Operators) {
    LogCount count{{}, std::move(Operators)};
    try {
        LineSource& lines = logs.Open(log);
        while (!lines.AtEnd()) {
            const std::string line = lines.Next();
            if (CountsAsContact(line)) ++count.sum.QSOs;
            count.sum.CountLine(line);
            const std::string_view operatorCall = WithoutTrailingBlanks(kOperator.Of(line));
            if (IsNewOperator(count.Operators, operatorCall)) count.Operators.append(1, ',').append(operatorCall);
        }
        logs.Close();
    } catch (const RunTimeError&) {
        // The count ends with the lines read so far, and the log stays open; see the header.
    }
    return count;
}

std::string SortOper(std::string_view Operators) {
    std::vector<std::string_view> pieces;
    std::size_t from = 0;
    for (std::size_t comma = Operators.find(','); comma != std::string_view::npos; comma = Operators.find(',', from)) {
        pieces.push_back(Operators.substr(from, comma - from));
        from = comma + 1;
    }
    pieces.push_back(Operators.substr(from));
    std::sort(pieces.begin(), pieces.end());
    std::string sorted(pieces.front());
    for (std::size_t i = 1; i < pieces.size(); ++i) sorted.append(", ").append(pieces[i]);
    return sorted;
}

std::string Tally::SortedOperators() const {
    return SortOper(Columns(Operators, 2));
}

Tally TallyLogs(LogReader& logs, const Stations& stations, std::string_view call) {
    Tally tally;
    tally.name = StationName(stations, call);
    for (std::size_t i = 0; i < kTenLogs.size(); ++i) {
        LogCount count = SumLog(logs, kTenLogs[i], std::move(tally.Operators));
        tally.rows[i] = count.sum;
        tally.Operators = std::move(count.Operators);
    }
    for (BandSum& row : tally.rows) {
        row.ComputeScore();
        tally.TotalQSOs += row.QSOs;
    }
    for (std::size_t bandNumber = 0; bandNumber < kBandCount; ++bandNumber) {
        tally.band[bandNumber].Add(tally.CW(bandNumber));
        tally.band[bandNumber].Add(tally.SSB(bandNumber));
        tally.band[bandNumber].ComputeScore();
        tally.Total.Add(tally.band[bandNumber]);
    }
    tally.Total.ComputeScore();
    return tally;
}

std::string_view GivenPhone(const PaperContext& context) {
    return context.phone == kDefaultPhone ? std::string_view{} : context.phone;
}

void WriteSummary(LineSink& paper, const PaperContext& context, const Tally& tally) {
    paper.Write(kSheetTitle);
    WriteBlank(paper);
    paper.Write(ToNextZone(ToNextZone("Kaldesignal: " + context.call) + "Kategori: " + context.contestClass) + "Antal logsider: ");
    WriteBlank(paper);
    paper.Write("Navn: " + tally.name);
    WriteBlank(paper);
    paper.Write(std::string(kOperatorsLabel) + tally.SortedOperators());
    WriteBlank(paper);
    paper.Write("Bånd        QSOs - Dubs  Mults x Points = Band score  Mult total x Points total = Bandscore total  Stn/Ant"_t);
    for (std::size_t bandNumber = kBandCount; bandNumber-- > 0;) WriteBand(paper, context, tally, bandNumber);
    WriteBlank(paper);
    WriteTotal(paper, tally);
    WriteBlank(paper);
    paper.Write("Ansvarshavende/Formand");
    WriteBlank(paper);
    WriteBlank(paper);
    paper.Write(std::string(kPhoneLabel).append(GivenPhone(context)));
}

}  // namespace vatro
