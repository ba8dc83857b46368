// SPDX-License-Identifier: MIT
//
// The summary that is sent in: the whole contest by band and mode, with the final score. It is made in three places: as a file (its lines
// are written here), as a table of the web page, and in print. Each time it is counted afresh from the ten logs.
//
// The final score is the product of two totals: all multipliers times all points. The scores of bands are for information only.
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

/// The totals of one log; Score is Mults times Points.
struct BandSum : LogSum {
    /// Number of contacts, without duplicates and notes.
    std::int32_t QSOs = 0;
};

struct LogCount {
    BandSum sum;
    /// The operators of the earlier logs and of this one, each preceded by ",".
    std::string Operators;
};

/// Counts a log, without its score, and adds its operators to `Operators`, the list from the earlier logs. An operator whose call occurs
/// anywhere in that text is not added, nor is the mark of an imported contact. A log that cannot be opened counts nothing. On any later
/// failure the count ends without a message, with the lines counted so far, and the log stays open, so the logs after it count nothing.
/// Do not close it: a paper with half a log in it would be sent in unnoticed (docs/rules.md).
LogCount SumLog(LogReader& logs, const LogId& log, std::string Operators);

/// Sorts a list of names by character code. The names are separated by "," in the list given and by ", " in the list returned.
std::string SortOper(std::string_view Operators);

/// The contents of a summary.
struct Tally {
    /// The station's name from the society's list, 73 characters including blanks; empty if the station is not on the list.
    std::string name;
    /// The operators, in the form of LogCount::Operators.
    std::string Operators;
    /// The totals of the logs, in the order of kTenLogs.
    std::array<BandSum, kTenLogs.size()> rows;
    /// The totals of the bands, CW and SSB together: 10, 15, 20, 40, 80 m.
    std::array<LogSum, kBandCount> band;
    std::int32_t TotalQSOs = 0;
    LogSum Total;

    const BandSum& CW(std::size_t bandNumber) const { return rows[2 * bandNumber]; }
    const BandSum& SSB(std::size_t bandNumber) const { return rows[2 * bandNumber + 1]; }
    /// The operators as papers show them: sorted, and separated by ", ".
    std::string SortedOperators() const;
};

/// Counts all ten logs. `call` is the station's own call, whose name is looked up in the society's list. Fails with 6 if a product
/// overflows 32 bits.
Tally TallyLogs(LogReader& logs, const Stations& stations, std::string_view call);

/// The names of the bands on sheets, in the order of Tally::band.
inline constexpr std::array<std::string_view, kBandCount> kMegahertz{" 28 MHz", " 21 MHz", " 14 MHz", "  7 MHz", "3,5 MHz"};
/// The number templates that differ between the file and the printed sheet.
struct BandColumns {
    std::string_view mults;
    std::string_view score;
};
/// Formats the part that CW and SSB rows share: band, mode and totals of a log.
std::string BandRow(const BandColumns& columns, std::size_t bandNumber, std::string_view mode, const BandSum& sum);
/// The telephone number; empty while it is the default number.
std::string_view GivenPhone(const PaperContext& context);

inline constexpr std::string_view kSheetTitle = "Sammentællingsblad for EDR's HF Fieldday for lokalafdelinger"_t;
inline constexpr std::string_view kOperatorsLabel = "Operatørernes kaldesignaler: "_t;
inline constexpr std::string_view kPhoneLabel = "Telefon (hvis der er spørgsmål): "_t;

/// Writes the lines of the file. The number of log sheets is left blank, to be filled in by hand.
void WriteSummary(LineSink& paper, const PaperContext& context, const Tally& tally);

}  // namespace vatro
