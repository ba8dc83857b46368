// SPDX-License-Identifier: MIT
//
// The papers as they are printed: logs, multiplier check sheet, summary and unknown prefixes, each counted and read as its file
// form is, with headings and footers of the page.
//
// A footer stands at the very bottom of its page, so that what is printed next begins a new page by itself.
#pragma once

#include <string_view>

#include "papers/context.h"
#include "papers/logs.h"
#include "papers/mult_check.h"
#include "papers/page_sink.h"
#include "papers/summary.h"

namespace vatro {

/// Prints the heading of a page and sets the font of the body. `band` may also be "Summary", "ukendt" or "Multiplier", without the
/// columns' names.
void PrintHoved(PageSink& pages, const PaperContext& context, std::string_view band, std::string_view mode);
/// Prints the footer, on the last line of the page.
void PrintFod(PageSink& pages, const PaperContext& context);

/// Prints the pages of a log, which is read to its end, between the heading of the first and the footer of the last one.
void PrintKrop(LineSource& lines, PageSink& pages, const PaperContext& context, const LogId& log);

/// Prints the table of multipliers, between the heading of the first page and the footer of the last one.
void PrintMult(PageSink& pages, const PaperContext& context, const Multipliers& multipliers);

/// Prints the rows of the summary, without heading and footer. Gives the number of the page as that of the log's pages, which it is
/// when the summary is printed behind them.
void PrintSheet(PageSink& pages, const PaperContext& context, const Tally& tally);

/// Prints the lines of the contacts of unknown prefix, between the heading of the first page and the footer of the last one.
void PrintUnknownLines(LineSource& lines, PageSink& pages, const PaperContext& context);

}  // namespace vatro
