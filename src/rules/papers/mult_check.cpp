// SPDX-License-Identifier: MIT
#include "papers/mult_check.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "errors.h"
#include "log/contact_line.h"
#include "papers/layout.h"
#include "papers/log_sheets.h"

namespace vatro {

namespace {

constexpr std::size_t kCellWidth = 7;
constexpr int kRowsPerPage = 50;
constexpr std::string_view kModes = "CW     SSB    CW     SSB    CW     SSB    CW     SSB    CW     SSB    ";

/// The cells of a row side by side; nothing if no column has this row.
std::optional<std::string> MultiplierRow(const Multipliers& multipliers, std::size_t row) {
    std::string text;
    bool any = false;
    for (std::size_t column = 0; column < multipliers.table.size(); ++column) {
        const bool used = row <= multipliers.count[column];
        any |= used;
        if (used)
            text.append(multipliers.table[column][row]);
        else
            text.append(kCellWidth, ' ');
    }
    if (!any) return std::nullopt;
    return text;
}

}  // namespace

MultColumn SamlMult(LogReader& logs, const LogId& log) {
    MultColumn column;
    try {
        LineSource& lines = logs.Open(log);
        while (!lines.AtEnd()) {
            const std::string line = lines.Next();
            if (!CountsAsMultiplier(line)) continue;
            ++column.count;
            if (column.count > kMultiplierRows) throw RunTimeError(Failure::IndexOutOfRange);
            column.cells[column.count] = kMultiplier.Of(line).substr(0, kCellWidth);
        }
        logs.Close();
    } catch (const RunTimeError&) {
        // The column ends with what was collected so far, and the log stays open; see the header.
    }
    return column;
}

Multipliers SortMult(Multipliers multipliers) {
    for (std::size_t column = 0; column < multipliers.table.size(); ++column) {
        if (multipliers.count[column] > kMultiplierRows) throw RunTimeError(Failure::IndexOutOfRange);
        const auto first = multipliers.table[column].begin() + 1;
        std::sort(first, first + static_cast<std::ptrdiff_t>(multipliers.count[column]));
    }
    return multipliers;
}

Multipliers CollectAllMultipliers(LogReader& logs) {
    Multipliers all;
    for (std::size_t i = 0; i < kTenLogs.size(); ++i) {
        MultColumn column = SamlMult(logs, kTenLogs[i]);
        all.table[i] = std::move(column.cells);
        all.count[i] = column.count;
    }
    return SortMult(std::move(all));
}

void LayOutMultipliers(const Multipliers& multipliers, const MultiplierPaper& paper) {
    paper.line(" ");
    paper.line(Indented("10m    10m    15m    15m    20m    20m    40m    40m    80m    80m    "));
    paper.line(Indented(kModes));
    paper.line(" ");
    int onPage = 0;
    for (std::size_t row = 1; row <= kMultiplierRows; ++row) {
        const auto text = MultiplierRow(multipliers, row);
        if (!text) break;
        paper.line(Indented(*text));
        if (++onPage <= kRowsPerPage) continue;
        paper.newPage();
        onPage = 1;
        paper.line(" ");
        paper.line(Indented("10m           15m           20m           40m           80m           "));
        paper.line(Indented(kModes));
    }
}

void DanMult(LineSink& paper, const PaperContext& context, const Multipliers& multipliers) {
    LayOutMultipliers(multipliers, {[&paper](std::string_view line) { paper.Write(line); },
                                    [&paper, &context] { DanHoved(paper, context, kMultiplierHeading.band, kMultiplierHeading.mode); }});
}

}  // namespace vatro
