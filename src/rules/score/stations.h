// SPDX-License-Identifier: MIT
//
// The society's own stations, which count 10 points: edr.txt, a text file made by hand, one station per line.
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
    /// The line of edr.txt.
    FixedText<80> Linje;
    /// Whether it has been worked in the current log. Not stored in any file.
    bool Wkd = false;
};

/// The six characters that identify a station: the call, cut or padded with blanks. A longer call that begins with those of a listed
/// station is therefore taken for that station. Keep this: a station that logs a longer form of its listed call would lose the 10 points
/// (docs/rules.md).
std::string StationCall(std::string call);

/// The list of stations. Only BeginReading and Read change its rows.
class Stations {
public:
    std::array<EDRRec, kEdrRows + 1> EDRstn;
    /// Rows in use. After a load that failed because the table is full, the line that did not fit is counted too.
    std::int16_t giEDR = 0;

    /// Empties the list, before the first Read.
    void BeginReading() { giEDR = 0; }
    /// Adds a station from a line, marked as not worked. Fails with 9 if the table is full, with the row counted.
    void Read(std::string_view line);

    /// The number of rows that may be read: giEDR, but at most the size of the table.
    int StationsInUse() const;

    /// Looks a station up by the first six characters of the call and applies the action: Mark marks it as worked, Unmark clears the
    /// mark, Test changes nothing. With every action, returns the points of the station, or nothing if the call is not on the list.
    std::optional<std::int32_t> EDRstnWkd(std::string_view call, MarkAction action);
    /// The same lookup, without an action.
    std::optional<std::int32_t> StationPoints(std::string_view call) const;

    /// Returns the text about the station of a base call that is shown to the operator; nothing if it is not on the list.
    std::optional<std::string> findEDRstn(std::string_view call) const;

    /// Clears the worked marks of all stations.
    void ResetEDR();

private:
    /// The next row after `row` whose packed call is `call`, or 0.
    std::size_t RowBehind(std::size_t row, std::uint64_t call) const;

    /// The calls of the rows, packed into numbers for speed: when a log is loaded, each of its lines is looked up here.
    std::array<std::uint64_t, kEdrRows + 1> keys_{};
};

}  // namespace vatro
