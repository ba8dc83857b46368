// SPDX-License-Identifier: MIT
//
// The summary that goes in: the whole contest by band and mode, with the final score. It is counted afresh from the ten logs
// for each of its three forms: Summary.txt here, the table of the HTML page, the printed sheet.
//
// The final score is the product of two sums, all multipliers times all points. The scores of bands are for information.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "codepage.h"
#include "papers/logs.h"

namespace vatro {

using namespace literals;

/// Figures of one log; Score is Mults times Points.
struct BandSum : LogSum {
    std::int32_t QSOs = 0;
};

/// Counts a log into `sum` and adds its operators to `Operators`, each with a "," before it; one whose call is part of what
/// stands there already is not added, nor is the mark of an imported contact. A log that cannot be opened is passed over. A
/// failure on the way ends it in silence, with what was counted, and leaves the file open.
void SumLog(const LogId& log, BandSum& sum, std::string& Operators);

/// From a list with "," to a sorted one with ", ".
void SortOper(std::string& Operators);

inline constexpr std::size_t kAntalBånd = kTenLogs.size() / 2;

/// What a summary tells.
struct Sammentælling {
    /// Of the station in the society's list, 73 characters with their blanks; empty if it is not on it.
    std::string name;
    /// As SumLog leaves it.
    std::string Operators;
    /// In the order of kTenLogs.
    std::array<BandSum, kTenLogs.size()> rækker;
    /// CW and SSB together: 10, 15, 20, 40, 80 m.
    std::array<LogSum, kAntalBånd> band;
    std::int32_t TotalQSOs = 0;
    LogSum Total;

    const BandSum& CW(std::size_t båndNr) const { return rækker[2 * båndNr]; }
    const BandSum& SSB(std::size_t båndNr) const { return rækker[2 * båndNr + 1]; }
    /// Sorted.
    std::string Operatører() const;
};

/// Counts all. A product over 32 bits fails with 6.
Sammentælling Sammentæl();

/// The bands as sheets name them, in the order of Sammentælling::bånd.
inline constexpr std::array<std::string_view, kAntalBånd> kMegahertz{" 28 MHz", " 21 MHz", " 14 MHz", "  7 MHz", "3,5 MHz"};
/// The templates in which the file and the printed sheet differ.
struct Båndsøjler {
    std::string_view mults;
    std::string_view score;
};
/// What a CW row and an SSB row have alike: band, mode and figures of a log.
std::string Båndrække(const Båndsøjler& søjler, std::size_t båndNr, std::string_view mode, const BandSum& sum);
/// The radio and the antenna of a band, by its place in the same order.
const std::string& RigAf(std::size_t båndNr);
const std::string& AntAf(std::size_t båndNr);
/// gsTelefon, or nothing as long as it is the default.
std::string_view OplystTelefon();

inline constexpr std::string_view kSammentællingsblad = "Sammentællingsblad for EDR's HF Fieldday for lokalafdelinger"_t;
inline constexpr std::string_view kOperatørerne = "Operatørernes kaldesignaler: "_t;
inline constexpr std::string_view kTelefonSpørgsmål = "Telefon (hvis der er spørgsmål): "_t;

/// Makes Summary.txt. A file that cannot be created is a failure.
void DanSummary();

}  // namespace vatro
