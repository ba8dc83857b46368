// SPDX-License-Identifier: MIT
//
// The papers on the printer: logs, multiplier check sheet, summary and unknown prefixes, each counted and read as its file form
// is, with headings and footers of the page.
//
// Every routine prints on the surface that the menu's handler hands it, and ends with a footer at the very bottom of the page,
// so that what is printed next begins a new page by itself. The handler ends the job.
#pragma once

#include <functional>
#include <string_view>

#include "papers/logs.h"
#include "papers/mult_check.h"

namespace vatro {

class PageSurface;

/// Title of the progress window.
inline constexpr std::string_view kPrintTitel = "Udskriv log";

/// Asks for the printer and its paper; Cancel changes nothing.
void VælgPrinter();

/// One print job: runs `papir` on the printer and ends the job.
void Udskriv(const std::function<void(PageSurface&)>& papir);

/// The heading of a page. `bånd` may also be "Summary", "ukendt" or "Multiplier", without the columns' names.
void PrintHoved(PageSurface& surface, std::string_view bånd, std::string_view mode);
/// The footer, on the last line of the page.
void PrintFod(PageSurface& surface);

/// A log. One that cannot be opened prints nothing and takes no page; one that fails on the way ends there, without a word.
void PrintLog(PageSurface& surface, const LogId& log);
/// The pages of the open log, without the footer of the last one.
void PrintKrop(PageSurface& surface, const LogId& log);

/// The multiplier check sheet, from the logs or of a table that is counted already. Fails with 9 on a hundred and one multipliers
/// of one log.
void PrintMultCheck(PageSurface& surface);
void PrintMult(PageSurface& surface, const MultTable& table, const MultCount& count);

/// Shows the number of the page as that of the log's pages, which it is when it is printed behind them.
void PrintSummary(PageSurface& surface);

/// The contacts of unknown prefix. A failure is taken for there being none, and told.
void PrintUkendt(PageSurface& surface);

/// All logs, the check sheet and the summary.
void PrintAlt(PageSurface& surface);

}  // namespace vatro
