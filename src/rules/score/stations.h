// SPDX-License-Identifier: MIT
//
// The society's own stations, which count more: edr.txt in gsFDLib, made by hand, one station a line.
//
//    1-6   call, blank-padded
//    7-80  free text; what stands before the first "," of the line, call included, is shown to the operator
//
// Rows are counted from 1; row 0 is never used.
#pragma once

#include <array>
#include <cstdint>
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

extern std::array<EDRRec, kEdrRows + 1> EDRstn;
/// Rows in use. After a load that failed at the end of the table it counts the line that did not fit.
extern std::int16_t giEDR;
/// Rows that can be visited: the count, but no row beyond the table.
int StationsInUse();

/// Loads the list. Any failure, also a line beyond the table, gives one message and leaves what was read; the file stays
/// open under number 1 in the latter case, so that the first log load of the run finds nothing: meant so.
void IndlæsEDR();

/// Recognises a station by the first six characters of the call, to which `call` is cut or blank-padded. A station found
/// sets giQSOPoint to 10 with every action; Op marks it as worked, Ned takes the mark away.
void EDRstnWkd(std::string& call, MarkAction action);

/// Words the station of a base call for the operator; `text` stays as it was if it is none.
void findEDRstn(std::string_view call, std::string& text);

/// Clears the worked marks.
void ResetEDR();

/// An empty list, as before the start.
void ClearStations();

}  // namespace vatro
