// SPDX-License-Identifier: MIT
//
// The multiplier check sheet: which multipliers were claimed in which log, ten sorted columns side by side. The rows are not
// aligned across the columns.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "papers/logs.h"

namespace vatro {

inline constexpr std::size_t kMultRækker = 100;

/// By column, in the order of kTenLogs, and row from 1. A cell has at most 7 characters; that of a line which ends before the
/// multiplier is shorter and moves the columns to its right: meant so.
using MultTable = std::array<std::array<std::string, kMultRækker + 1>, kTenLogs.size()>;
/// Cells in use.
using MultCount = std::array<std::size_t, kTenLogs.size()>;

/// Collects a log in a column. A log that cannot be opened is passed over. One cell too many ends it in silence, with the cell
/// counted and the file left open, so that the logs after it are passed over too.
void SamlMult(const LogId& log, MultTable& table, MultCount& count, std::size_t kolonne);

/// Sorts each column. Fails with 9 if one has a cell too many.
void SortMult(MultTable& table, const MultCount& count);

/// SamlMult of the ten logs and SortMult.
void SamlAlleMult(MultTable& table, MultCount& count);

/// What a form of the check sheet does with it: prints a line as it stands, begins a page with its heading.
struct MultPapir {
    std::function<void(std::string_view)> linje;
    std::function<void()> nySide;
};
/// Lays the table out. The first page holds 51 rows and each later one 50, under a shorter heading: meant so.
void OpsætMult(const MultTable& table, const MultCount& count, const MultPapir& papir);

/// The table into the open paper.
void DanMult(const MultTable& table, const MultCount& count);

/// Makes Mult.txt. A file that cannot be created is a failure.
void DanMultCheck();

inline constexpr std::string_view kMultTrin = "Multiplier checksheet";
/// Band and mode of the sheet's heading.
inline constexpr LogId kMultHoved{"Multiplier", "Checksheet"};

}  // namespace vatro
