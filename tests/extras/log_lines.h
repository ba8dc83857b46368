// SPDX-License-Identifier: MIT
//
// Log lines for tests.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// An SSB contact line of 79 columns with this number and minute.
inline std::string ContactLine(int number, int minute, const std::string& call = "DL1AA") {
    char line[96];
    std::snprintf(line, sizeof line, "12:%02d %-15s 59 -%04d 59 -0003  3            OZ1DEF     SSB   05-09-26", minute % 60, call.c_str(),
                  number);
    return line;
}

/// The content of a log with this many contacts, one a minute.
inline std::string LogOf(int contacts) {
    std::string content;
    for (int i = 1; i <= contacts; ++i) content += ContactLine(i, i) + "\r\n";
    return content;
}

/// Some lines of a log, without their ends.
inline const std::string kOne = ContactLine(1, 1);
inline const std::string kTwo = ContactLine(2, 2);
inline const std::string kThree = ContactLine(3, 3);
/// The second one, corrected.
inline const std::string kCorrected = ContactLine(2, 2, "DL2BB");

}  // namespace vatro
