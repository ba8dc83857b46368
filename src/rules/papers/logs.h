// SPDX-License-Identifier: MIT
//
// Reads the ten logs for the papers. A paper reads each log from its file, beginning at the first line, and never changes it. It does not
// use the log that the entry desk holds in memory.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "lines.h"
#include "log/ten_logs.h"

namespace vatro {

/// The order of the logs on papers.
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
    /// Opens a log at its first line. The returned source is valid until Close. Fails if there is no such log, and with 55 while another
    /// log is open.
    virtual LineSource& Open(const LogId& log) = 0;
    /// Closes the open log.
    virtual void Close() = 0;
};

/// Writes a blank line; it contains one blank.
void WriteBlank(LineSink& paper);

/// Whether the line is a note. Unlike the load of a log, papers recognise the mark only in upper case: if an editor has changed it to
/// "Note: ", the line counts as a contact on every paper. Stations that recount an old log rely on this to get the sum they sent in.
bool IsNoteLine(std::string_view line);
/// Whether the line counts as a contact: neither a note nor marked as a duplicate.
bool CountsAsContact(std::string_view line);
/// Whether the line counts as a multiplier: a contact whose column 44 is not blank. A line that ends before column 44 counts too,
/// although the load of a log does not count it. Do not correct this: stations that recount an old log must find the sum they sent in
/// (docs/rules.md).
bool CountsAsMultiplier(std::string_view line);

/// Totals of contact lines. Fails with 6 if a total overflows 32 bits.
struct LogSum {
    std::int32_t Points = 0;
    std::int32_t Mults = 0;
    std::int32_t Score = 0;

    /// Adds a line to the totals. The points columns are added for every line: also for a duplicate, which has 0 there, and for a note,
    /// so digits of a note in these columns raise the points of its log. Do not skip notes: stations must find the sum they sent in
    /// (docs/rules.md).
    void CountLine(std::string_view line);
    /// Adds the points and multipliers of other totals.
    void Add(const LogSum& other);
    /// Sets the score to multipliers times points.
    void ComputeScore();
};

}  // namespace vatro
