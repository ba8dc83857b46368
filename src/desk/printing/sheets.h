// SPDX-License-Identifier: MIT
//
// The papers that go in, as text files in the log directory: log sheets, multiplier check sheet, summary. What the menu "Dan log"
// makes.
#pragma once

#include "log/ten_logs.h"

namespace vatro {

/// Makes the sheets of one log. A log that cannot be opened makes none, leaves earlier ones and says nothing. Any failure
/// ends it in silence, with the files left open: the next log that is opened finds their numbers in use.
void Danlog(const LogId& log);

/// Makes Mult.txt. Fails if the file cannot be created, and with 9 on more than a hundred multipliers of one log.
void DanMultCheck();

/// Makes Summary.txt. Fails if the file cannot be created, and with 6 if a product is over 32 bits.
void DanSummary();

/// All sheets, the multiplier check sheet and the summary.
void MakeAllPapers();

/// The step of the multiplier check sheet in the progress window.
inline constexpr std::string_view kMultiplierStep = "Multiplier checksheet";

}  // namespace vatro
