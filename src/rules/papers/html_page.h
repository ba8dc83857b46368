// SPDX-License-Identifier: MIT
//
// The whole contest on one web page, headed as preliminary. Nothing from the logs is escaped. Some tags are closed twice, others
// never, and the anchor is "Top" where the links say "#top": the page is the same to the letter as it has always been, for
// whatever reads it further. Browsers show it all the same.
#pragma once

#include "papers/context.h"
#include "papers/logs.h"
#include "papers/summary.h"

namespace vatro {

/// Writes the top of the page, with the links to the sections.
void WriteHtmlTop(LineSink& page, const PaperContext& context);

/// Writes the top of a log's section: anchor, heading and the columns' names.
void DanHtmHoved(LineSink& page, const LogId& log);
/// Writes every line of a log, notes too, and its sums.
void DanHtmKrop(LineSource& lines, LineSink& page);
/// Writes the end of a log's section.
void WriteHtmlSectionEnd(LineSink& page);

/// Writes the summary. In the list of operators, which is not sorted, the first one lacks its first letter. This is kept on
/// purpose, as the page is.
void DanHtmSummary(LineSink& page, const PaperContext& context, const Tally& tally);

/// Writes the end of the page.
void WriteHtmlEnd(LineSink& page);

}  // namespace vatro
