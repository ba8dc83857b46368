// SPDX-License-Identifier: MIT
//
// The logs that there can be: one for each band and log mode. The digital modes have no log of their own and stand in the CW log of
// their band.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vatro {

/// A log by band, as "80m", and log mode, "CW" or "SSB".
struct LogId {
    std::string_view band;
    std::string_view mode;
};

/// All logs, in the order in which they are copied, searched and counted.
inline constexpr std::array<LogId, 10> kTenLogs{{{"10m", "CW"},
                                                 {"10m", "SSB"},
                                                 {"15m", "CW"},
                                                 {"15m", "SSB"},
                                                 {"20m", "CW"},
                                                 {"20m", "SSB"},
                                                 {"40m", "CW"},
                                                 {"40m", "SSB"},
                                                 {"80m", "CW"},
                                                 {"80m", "SSB"}}};

/// Name of a log's file in the log directory: "FD80mSSB.txt".
std::string LogName(std::string_view band, std::string_view mode);

}  // namespace vatro
