// SPDX-License-Identifier: MIT
//
// The papers in print: logs, multiplier check sheet, summary and unknown prefixes. The first three are read and counted like the papers
// that are made as files. Every page has a heading and a footer.
//
// A footer fills the last line of its page, so the next text begins a new page by itself.
#pragma once

#include <string_view>

#include "papers/context.h"
#include "papers/logs.h"
#include "papers/mult_check.h"
#include "papers/page_sink.h"
#include "papers/summary.h"

namespace vatro {

/// Prints the heading of a page and sets the font of the body. `band` may also be "Summary", "ukendt" or "Multiplier"; the column
/// names are then left out.
void PrintHoved(PageSink& pages, const PaperContext& context, std::string_view band, std::string_view mode);
/// Prints the footer, on the last line of the page.
void PrintFod(PageSink& pages, const PaperContext& context);

/// Reads a log to its end and prints its pages. The caller prints the heading of the first page and the footer of the last one.
void PrintKrop(LineSource& lines, PageSink& pages, const PaperContext& context, const LogId& log);

/// Prints the table of multipliers. The caller prints the heading of the first page and the footer of the last one.
void PrintMult(PageSink& pages, const PaperContext& context, const Multipliers& multipliers);

/// Prints the rows of the summary, without heading and footer. The number of log sheets is given as the current page number, which is
/// right if the summary is printed after the logs in one job.
void PrintSheet(PageSink& pages, const PaperContext& context, const Tally& tally);

/// Prints the lines of the contacts with unknown prefixes. The caller prints the heading of the first page and the footer of the last
/// one.
void PrintUnknownLines(LineSource& lines, PageSink& pages, const PaperContext& context);

}  // namespace vatro
