// SPDX-License-Identifier: MIT
//
// The society's own stations, which count more: edr.txt, made by hand, one station a line.
//
//    1-6   call, blank-padded
//    7-80  free text; what stands before the first "," of the line, call included, is shown to the operator
//
// Rows are counted from 1; row 0 is never used.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "columns.h"
#include "country/lookup.h"

namespace vatro {

inline constexpr int kEdrRows = 200;
inline constexpr std::size_t kEdrCall = 6;

struct EDRRec {
    FixedText<80> Linje;
    /// Worked in the current log. In no file.
    bool Wkd = false;
};

/// The six characters by which a station is known: the call cut off there, or filled up with blanks.
std::string StationCall(std::string_view call);

/// The list. Rows change by Read alone.
class Stations {
public:
    std::array<EDRRec, kEdrRows + 1> EDRstn;
    /// Rows in use. After a load that failed at the end of the table it counts the line that did not fit.
    std::int16_t giEDR = 0;

    /// No row is in use any more.
    void BeginReading() { giEDR = 0; }
    /// The next row, not worked. Fails with 9 where the table is full, with the row counted.
    void Read(std::string_view line);

    /// Rows that can be visited: the count, but no row beyond the table.
    int StationsInUse() const;

    /// Recognises a station by its six characters. Mark marks it as worked, Unmark takes the mark away. Gives the points of a station
    /// found, whatever the action, and nothing for a call that is none.
    std::optional<std::int32_t> EDRstnWkd(std::string_view call, MarkAction action);
    /// As with Test.
    std::optional<std::int32_t> StationPoints(std::string_view call) const;

    /// Words the station of a base call for the operator.
    std::optional<std::string> findEDRstn(std::string_view call) const;

    /// Clears the worked marks.
    void ResetEDR();

private:
    /// The row that comes next behind this one with the packed call, or 0.
    std::size_t RowBehind(std::size_t row, std::uint64_t call) const;

    /// The calls of the rows, packed: every line of a log that is loaded is looked for among all stations.
    std::array<std::uint64_t, kEdrRows + 1> keys_{};
};

}  // namespace vatro
