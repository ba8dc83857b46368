// SPDX-License-Identifier: MIT
//
// The multiplier check sheet: the multipliers claimed in each log, in ten sorted columns side by side. Equal multipliers do not line
// up across the columns.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "papers/context.h"
#include "papers/logs.h"

namespace vatro {

inline constexpr std::size_t kMultiplierRows = 100;

/// The cells of a column, counted from 1. A cell has at most 7 characters. If a line ends before column 50, its cell is shorter and the
/// columns to the right of it move to the left; the operator sees from this that the log has such a line.
using MultCells = std::array<std::string, kMultiplierRows + 1>;
/// The columns, in the order of kTenLogs.
using MultTable = std::array<MultCells, kTenLogs.size()>;
/// The number of cells in use in each column. If a log has more multipliers than the table has rows, the first one too many is
/// counted too.
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

/// Collects the multipliers of a log. A log that cannot be opened gives an empty column. If the log has too many multipliers, or cannot
/// be read to its end, the column ends there without a message; of too many multipliers the first one that does not fit is counted. The
/// log then stays open, so the logs after it give nothing. Do not close it: a paper with half a log in it would be sent in unnoticed
/// (docs/rules.md).
MultColumn SamlMult(LogReader& logs, const LogId& log);

/// Sorts each column by character code. Fails with 9 if a column has a cell too many.
Multipliers SortMult(Multipliers multipliers);

/// Runs SamlMult for the ten logs, in the order of kTenLogs, then SortMult.
Multipliers CollectAllMultipliers(LogReader& logs);

/// The callbacks that write the check sheet to a file or print it: `line` writes a line, `newPage` begins a page with its heading.
struct MultiplierPaper {
    std::function<void(std::string_view)> line;
    std::function<void()> newPage;
};
/// Lays out the table. The first page holds 51 rows and each later one 50, under a heading that names each band once. Do not even
/// this out: operators lay a new sheet beside an old one and expect the same page breaks.
void LayOutMultipliers(const Multipliers& multipliers, const MultiplierPaper& paper);

/// Writes the table. The caller has written the heading of the first page.
void DanMult(LineSink& paper, const PaperContext& context, const Multipliers& multipliers);

/// The two words in the heading of the sheet, where other papers have band and mode.
inline constexpr LogId kMultiplierHeading{"Multiplier", "Checksheet"};

}  // namespace vatro
