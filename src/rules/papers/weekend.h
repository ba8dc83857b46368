// SPDX-License-Identifier: MIT
//
// The contest weekend: the first Saturday of September and the Sunday after it. No paper prints it; the dates on papers come from the
// log lines.
#pragma once

#include <string>

#include "datetime.h"

namespace vatro {

struct ContestWeekend {
    /// Saturday and Sunday. Each is read back from a text with a two-digit year, so from 2050 on they are a century too early.
    DateTime gdFirstDay;
    DateTime gdSecondDay;
    /// The same days as "yyyy-mm-dd", with the right century.
    std::string gsFirstDay;
    std::string gsSecondDay;
};

/// Returns the contest weekend of a year.
ContestWeekend Find1Weekend(int year);

}  // namespace vatro
