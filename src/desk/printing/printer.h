// SPDX-License-Identifier: MIT
//
// Prints the papers of the menu "Udskriv log".
//
// Every function prints on the surface that the menu's handler passes to it and ends with a footer on the last line of the page, so
// the next paper begins a new page by itself. The handler ends the print job.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "log/ten_logs.h"

namespace vatro {

class PageSurface;

/// Asks for the printer and its paper; Cancel changes nothing.
void ChoosePrinter();

/// Runs one print job: calls `paper` with the printer's surface and then ends the job. The job is named `name` and the year, such as
/// "Summary 2026".
void RunPrintJob(std::string_view name, const std::function<void(PageSurface&)>& paper);
/// The name for the job of one log: "Log 80m CW".
std::string LogJobName(const LogId& log);

/// Prints a log. A log that cannot be opened prints nothing and uses no page. If a failure occurs during printing, the log ends there
/// without a message.
void PrintLog(PageSurface& surface, const LogId& log);

/// Prints the multiplier check sheet. Fails with 9 if one log has more than a hundred multipliers.
void PrintMultCheck(PageSurface& surface);

/// Prints the summary. Fails with 6 if a product overflows 32 bits.
void PrintSummary(PageSurface& surface);

/// Prints the contacts with unknown prefixes. On any failure says that there are none.
void PrintUkendt(PageSurface& surface);

/// Prints all logs, the check sheet and the summary.
void PrintAll(PageSurface& surface);

}  // namespace vatro
