// SPDX-License-Identifier: MIT
//
// The ten logs of a contest: one for each band and log mode. The digital modes have no log of their own: they count as CW and are
// written to the CW log of their band, where the mode column tells them apart.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vatro {

/// Identifies a log by its band, such as "80m", and its log mode, "CW" or "SSB".
struct LogId {
    std::string_view band;
    std::string_view mode;
};

/// All ten logs, in the order in which they are copied, searched and counted.
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

/// The file name of a log: "FD80mSSB.txt".
std::string LogName(std::string_view band, std::string_view mode);

/// The default report of a QSO mode: "59" for SSB, "599" for the others, empty if the text is not a QSO mode.
std::string_view StandardRST(std::string_view qsoMode);

}  // namespace vatro
