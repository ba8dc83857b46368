// SPDX-License-Identifier: MIT
//
// The log sheets: the paper form of each log, as text files SM + band + mode + ".txt" in the log directory, cut into pages with
// a heading and two rows of totals. They go in with the summary.
#pragma once

#include <string_view>

#include "papers/logs.h"

namespace vatro {

/// Makes the sheets of one log. A log that cannot be opened makes none, leaves earlier ones and says nothing. Any failure
/// ends it in silence, with the files left open: the next log that is opened finds their numbers in use.
void Danlog(const LogId& log);

/// The heading of a page of the open sheet file. `bånd` may also be "Multiplier" or "ukendt", without the columns' names.
void DanHoved(std::string_view bånd, std::string_view mode);

/// The pages of the open log file, into the open sheet file.
void DanKrop(const LogId& log);

/// All sheets, the multiplier check sheet and the summary.
void DanAlt();

}  // namespace vatro
