// SPDX-License-Identifier: MIT
//
// The simplest way to look at the same bytes: counts how often one character occurs in them.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "country/tables.h"
#include "frame/state.h"
#include "log/contact_line.h"

namespace vatro::bench {

inline std::ptrdiff_t CountIn(std::string_view text, char sought) {
    return std::count(text.begin(), text.end(), sought);
}

/// The call columns of every log line.
inline std::ptrdiff_t ScanLog(const std::vector<std::string>& lines, char sought) {
    std::ptrdiff_t found = 0;
    for (const std::string& line : lines) found += CountIn(kCall.Of(line), sought);
    return found;
}

/// The prefixes in the table.
inline std::ptrdiff_t ScanTable(char sought) {
    const CountryTables& tables = desk().tables;
    const int rows = tables.Rows().giRefPfx;
    std::ptrdiff_t found = 0;
    for (int row = 1; row <= rows; ++row) found += CountIn(tables.Rows().RefPfx[static_cast<std::size_t>(row)].Pfx.Padded(), sought);
    return found;
}

}  // namespace vatro::bench
