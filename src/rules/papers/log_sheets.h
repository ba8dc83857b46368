// SPDX-License-Identifier: MIT
//
// The log sheets: the paper form of a log, cut into pages with a heading and two rows of totals. They go in with the summary.
#pragma once

#include <string>
#include <string_view>

#include "papers/context.h"
#include "papers/logs.h"

namespace vatro {

/// "SM80mCW.txt".
std::string LogSheetName(const LogId& log);

/// Writes the heading of a page. `band` may also be "Multiplier" or "ukendt", without the columns' names.
void DanHoved(LineSink& paper, const PaperContext& context, std::string_view band, std::string_view mode);

/// Writes the pages of a log, which is read to its end, behind the heading of the first page.
void DanKrop(LineSource& lines, LineSink& paper, const PaperContext& context, const LogId& log);

}  // namespace vatro
