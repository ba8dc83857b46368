// SPDX-License-Identifier: MIT
//
// Makes the papers of the menu "Dan log", which are sent in: log sheets, multiplier check sheet and summary, as text files in the log
// directory.
#pragma once

#include "log/ten_logs.h"

namespace vatro {

/// Makes the sheets of one log. If the log cannot be opened, none are made, earlier ones are kept, and there is no message. Any other
/// failure ends the sheets without a message and leaves the files open, so the next log to be opened finds their numbers in use.
void Danlog(const LogId& log);

/// Makes Mult.txt. Fails if the file cannot be created, and with 9 if one log has more than a hundred multipliers.
void DanMultCheck();

/// Makes Summary.txt. Fails if the file cannot be created, and with 6 if a product overflows 32 bits.
void DanSummary();

/// Makes all sheets, the multiplier check sheet and the summary.
void MakeAllPapers();

/// The name of the multiplier check sheet in the progress window.
inline constexpr std::string_view kMultiplierStep = "Multiplier checksheet";

}  // namespace vatro
