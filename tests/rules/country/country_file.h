// SPDX-License-Identifier: MIT
//
// Country files of one country, as lines.
#pragma once

#include <string>
#include <vector>

namespace vatro {

inline constexpr const char* kSampleHeader = "Fantasia:                 14:  27:  EU:   56.00:   -10.00:    -1.0:  QQ:";

/// A number of up to four digits with leading zeros.
inline std::string FourDigits(int number) {
    const std::string digits = std::to_string(number);
    return std::string(4 - digits.size(), '0') + digits;
}

/// An entry with the prefixes C0001 and so on, ten per line.
inline std::vector<std::string> EntryOf(int prefixes) {
    std::vector<std::string> lines{kSampleHeader};
    for (int i = 1; i <= prefixes; ++i) {
        if (i % 10 == 1) lines.emplace_back("    ");
        lines.back() += "C" + FourDigits(i) + (i == prefixes ? ";" : ",");
    }
    return lines;
}

}  // namespace vatro
