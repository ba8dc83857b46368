// SPDX-License-Identifier: MIT
//
// Lines of logs for tests.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// A contact of an SSB log, 79 columns: its number, and the minute of its time.
inline std::string ContactLine(int number, int minute, const std::string& call = "DL1AA") {
    char line[96];
    std::snprintf(line, sizeof line, "12:%02d %-15s 59 -%04d 59 -0003  3            OZ1DEF     SSB   05-09-26", minute % 60, call.c_str(),
                  number);
    return line;
}

/// So many contacts, one a minute, as the content of a log.
inline std::string LogOf(int contacts) {
    std::string content;
    for (int i = 1; i <= contacts; ++i) content += ContactLine(i, i) + "\r\n";
    return content;
}

}  // namespace vatro
