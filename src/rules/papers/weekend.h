// SPDX-License-Identifier: MIT
//
// The contest weekend: the first Saturday of September and the Sunday after it. No paper prints it: dates on paper are those of
// the lines.
#pragma once

#include <string>

#include "datetime.h"

namespace vatro {

struct ContestWeekend {
    /// Saturday and Sunday, each read back from a text with a two-digit year: from 2050 on they lie a century back.
    DateTime gdFirstDay;
    DateTime gdSecondDay;
    /// The same days as "yyyy-mm-dd", with all four figures of the year.
    std::string gsFirstDay;
    std::string gsSecondDay;
};

/// The weekend of a year.
ContestWeekend Find1Weekend(int year);

}  // namespace vatro
