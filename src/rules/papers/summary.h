// SPDX-License-Identifier: MIT
//
// The summary that goes in: the whole contest by band and mode, with the final score. It is counted afresh from the ten logs
// for each of its three forms: the file, whose lines are here, the table of the web page, the printed sheet.
//
// The final score is the product of two sums, all multipliers times all points. The scores of bands are for information.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "codepage.h"
#include "papers/context.h"
#include "papers/logs.h"
#include "score/stations.h"

namespace vatro {

using namespace literals;

/// Figures of one log; Score is Mults times Points.
struct BandSum : LogSum {
    std::int32_t QSOs = 0;
};

struct LogCount {
    BandSum sum;
    /// The operators handed in and those of the log, each with a "," before it.
    std::string Operators;
};

/// Counts a log, without its score, and adds its operators to those found in earlier logs. An operator whose call is part of what
/// stands there already is not added, nor is the mark of an imported contact. A log that cannot be opened counts nothing. A
/// failure on the way ends it in silence, with what was counted, and leaves the log open.
LogCount SumLog(LogReader& logs, const LogId& log, std::string Operators);

/// From a list with "," to one sorted by character code with ", ".
std::string SortOper(std::string_view Operators);

/// What a summary tells.
struct Tally {
    /// Of the station in the society's list, 73 characters with their blanks; empty if it is not on it.
    std::string name;
    /// As SumLog leaves it.
    std::string Operators;
    /// In the order of kTenLogs.
    std::array<BandSum, kTenLogs.size()> rows;
    /// CW and SSB together: 10, 15, 20, 40, 80 m.
    std::array<LogSum, kBandCount> band;
    std::int32_t TotalQSOs = 0;
    LogSum Total;

    const BandSum& CW(std::size_t bandNumber) const { return rows[2 * bandNumber]; }
    const BandSum& SSB(std::size_t bandNumber) const { return rows[2 * bandNumber + 1]; }
    std::string SortedOperators() const;
};

/// Counts all ten logs. `call` is the station's own, whose name is looked for in the society's list. A product over 32 bits fails with 6.
Tally TallyLogs(LogReader& logs, const Stations& stations, std::string_view call);

/// The bands as sheets name them, in the order of Tally::band.
inline constexpr std::array<std::string_view, kBandCount> kMegahertz{" 28 MHz", " 21 MHz", " 14 MHz", "  7 MHz", "3,5 MHz"};
/// The templates in which the file and the printed sheet differ.
struct BandColumns {
    std::string_view mults;
    std::string_view score;
};
/// What a CW row and an SSB row have alike: band, mode and figures of a log.
std::string BandRow(const BandColumns& columns, std::size_t bandNumber, std::string_view mode, const BandSum& sum);
/// The telephone number, or nothing as long as it is the default.
std::string_view GivenPhone(const PaperContext& context);

inline constexpr std::string_view kSheetTitle = "Sammentællingsblad for EDR's HF Fieldday for lokalafdelinger"_t;
inline constexpr std::string_view kOperatorsLabel = "Operatørernes kaldesignaler: "_t;
inline constexpr std::string_view kPhoneLabel = "Telefon (hvis der er spørgsmål): "_t;

/// Writes the file's lines. The number of log sheets is left to be written in by hand.
void WriteSummary(LineSink& paper, const PaperContext& context, const Tally& tally);

}  // namespace vatro
