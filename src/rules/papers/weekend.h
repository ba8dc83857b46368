// SPDX-License-Identifier: MIT
//
// The contest weekend: the first Saturday of September and the Sunday after it, in the year of the clock.
#pragma once

#include <string>

#include "datetime.h"

namespace vatro {

/// Saturday and Sunday, each read back from a text with a two-digit year: from 2050 on they lie a century back.
extern DateTime gdFirstDay;
extern DateTime gdSecondDay;
/// The same days as "yyyy-mm-dd", with the year of the clock.
extern std::string gsFirstDay;
extern std::string gsSecondDay;

/// Sets the four values. At the start, and at the start of each band's pass of a paper; the year is always that of the clock,
/// never one read from a log. No paper prints them: dates on paper are those of the lines.
void Find1Weekend();

}  // namespace vatro
