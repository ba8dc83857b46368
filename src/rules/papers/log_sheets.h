// SPDX-License-Identifier: MIT
//
// The log sheets: the paper form of a log, in pages with a heading and two rows of totals. They are sent in with the summary.
#pragma once

#include <string>
#include <string_view>

#include "papers/context.h"
#include "papers/logs.h"

namespace vatro {

/// The file name of a log sheet: "SM80mCW.txt".
std::string LogSheetName(const LogId& log);

/// Writes the heading of a page. `band` may also be "Multiplier" or "ukendt"; the column names are then left out.
void DanHoved(LineSink& paper, const PaperContext& context, std::string_view band, std::string_view mode);

/// Reads a log to its end and writes its pages. The caller has written the heading of the first page.
void DanKrop(LineSource& lines, LineSink& paper, const PaperContext& context, const LogId& log);

}  // namespace vatro
