// SPDX-License-Identifier: MIT
//
// The papers on the printer. What the menu "Udskriv log" prints.
//
// Every routine prints on the surface that the menu's handler hands it, and ends with a footer at the very bottom of the page,
// so that what is printed next begins a new page by itself. The handler ends the job.
#pragma once

#include <functional>

#include "log/ten_logs.h"

namespace vatro {

class PageSurface;

/// Asks for the printer and its paper; Cancel changes nothing.
void ChoosePrinter();

/// One print job: runs `paper` on the printer and ends the job.
void RunPrintJob(const std::function<void(PageSurface&)>& paper);

/// Prints a log. One that cannot be opened prints nothing and takes no page; one that fails on the way ends there, without a word.
void PrintLog(PageSurface& surface, const LogId& log);

/// Prints the multiplier check sheet. Fails with 9 on more than a hundred multipliers of one log.
void PrintMultCheck(PageSurface& surface);

/// Prints the summary. Fails with 6 if a product is over 32 bits.
void PrintSummary(PageSurface& surface);

/// Prints the contacts of unknown prefix. Any failure is told as if there were none.
void PrintUkendt(PageSurface& surface);

/// Prints all logs, the check sheet and the summary.
void PrintAll(PageSurface& surface);

}  // namespace vatro
