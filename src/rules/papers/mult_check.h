// SPDX-License-Identifier: MIT
//
// The multiplier check sheet: which multipliers were claimed in which log, ten sorted columns side by side. The rows are not
// aligned across the columns.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "papers/context.h"
#include "papers/logs.h"

namespace vatro {

inline constexpr std::size_t kMultiplierRows = 100;

/// Cells of a column, from 1. A cell has at most 7 characters. That of a line which ends before the multiplier is shorter and
/// moves the columns to its right on the sheet, which shows the operator that the log holds such a line.
using MultCells = std::array<std::string, kMultiplierRows + 1>;
/// By column, in the order of kTenLogs.
using MultTable = std::array<MultCells, kTenLogs.size()>;
/// Cells in use, by column. One more than there are if a log has more multipliers than the table has rows.
using MultCount = std::array<std::size_t, kTenLogs.size()>;

/// One log's column.
struct MultColumn {
    MultCells cells;
    std::size_t count = 0;
};

struct Multipliers {
    MultTable table;
    MultCount count{};
};

/// Collects the multipliers of a log. A log that cannot be opened gives an empty column. One cell too many, or any failure on the
/// way, ends the column in silence, with that cell counted, and leaves the log open, so that the logs after it give nothing.
MultColumn SamlMult(LogReader& logs, const LogId& log);

/// Sorts each column by character code. Fails with 9 if one has a cell too many.
Multipliers SortMult(Multipliers multipliers);

/// SamlMult of the ten logs, in their order, and SortMult.
Multipliers CollectAllMultipliers(LogReader& logs);

/// What a form of the check sheet does with it: prints a line as it stands, begins a page with its heading.
struct MultiplierPaper {
    std::function<void(std::string_view)> line;
    std::function<void()> newPage;
};
/// Lays the table out. The first page holds 51 rows and each later one 50, under a heading that names each band once. This is
/// kept on purpose: the pages break where they always have.
void LayOutMultipliers(const Multipliers& multipliers, const MultiplierPaper& paper);

/// Writes the table, behind the heading of the first page.
void DanMult(LineSink& paper, const PaperContext& context, const Multipliers& multipliers);

/// Band and mode of the sheet's heading.
inline constexpr LogId kMultiplierHeading{"Multiplier", "Checksheet"};

}  // namespace vatro
