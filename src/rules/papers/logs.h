// SPDX-License-Identifier: MIT
//
// The ten logs as papers read them: each anew from its first line, and never changed. What is in memory of the log being worked
// on plays no part.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "lines.h"
#include "log/ten_logs.h"

namespace vatro {

/// The order in which papers set the logs out.
inline constexpr std::array<LogId, 10> kPaperOrder{{{"80m", "CW"},
                                                    {"80m", "SSB"},
                                                    {"40m", "CW"},
                                                    {"40m", "SSB"},
                                                    {"20m", "CW"},
                                                    {"20m", "SSB"},
                                                    {"15m", "CW"},
                                                    {"15m", "SSB"},
                                                    {"10m", "CW"},
                                                    {"10m", "SSB"}}};

/// Opens the logs for papers that count several of them. One log at a time is open.
class LogReader {
public:
    virtual ~LogReader() = default;
    /// The log from its first line on; good until the log is closed. Fails if there is no such log, and with 55 while another
    /// one is still open.
    virtual LineSource& Open(const LogId& log) = 0;
    /// Closes the open log.
    virtual void Close() = 0;
};

/// Writes a blank line, which holds one blank.
void WriteBlank(LineSink& paper);

/// Whether the line is a note. Unlike the load of a log, papers know the mark only in upper case: a line that an editor has
/// turned into "Note: " counts as a contact on every paper.
bool IsNoteLine(std::string_view line);
/// Whether the line counts as a contact: neither a note nor marked as a duplicate.
bool CountsAsContact(std::string_view line);
/// Whether the line counts as a multiplier: a contact whose column 44 is not a blank. A line that ends before it counts.
bool CountsAsMultiplier(std::string_view line);

/// Sums of lines. A sum over 32 bits fails with 6.
struct LogSum {
    std::int32_t Points = 0;
    std::int32_t Mults = 0;
    std::int32_t Score = 0;

    /// Counts a line. The value of the points columns counts for every line, also of a duplicate, which holds 0 there, and of a
    /// note: digits that a note has at these columns raise the points of its log.
    void CountLine(std::string_view line);
    /// Adds points and multipliers of other lines.
    void Add(const LogSum& other);
    /// Multipliers times points.
    void ComputeScore();
};

}  // namespace vatro
