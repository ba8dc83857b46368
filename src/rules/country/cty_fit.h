// SPDX-License-Identifier: MIT
//
// A country file in memory, for the program vatro-cty: finds what the import would reject, and which items can be left out so that
// the others fit into the table of prefixes.
//
// The import treats every item, even an exact call, as a prefix: a call belongs to the country of the longest item that begins it. An
// item can therefore be left out without loss if the longest shorter item that stays gives the same country and zones. An item with a
// slash is a single call. The program finds it either whole or by its country text: without its own item, LU1DHL/D belongs to D, not
// to LU.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "columns.h"

namespace vatro {

/// Prefixes that the table holds safely. One more would occupy the spare row of the import's sort and be lost.
inline constexpr std::size_t kPrefixRoom = 5999;

struct CtyItem {
    /// The text in the file, with its marks.
    std::string text;
    /// The text without marks.
    std::string bare;
    /// The text without marks, cut to the width of the table.
    std::string prefix;
    FixedText<2> cqZone;
    FixedText<2> ituZone;
    bool isExactCall = false;
    /// Whether the item is kept in the file.
    bool stays = true;
};

struct CtyCountry {
    /// The header line as it is in the file.
    std::string header;
    std::string prefix;
    std::vector<CtyItem> items;
};

/// The items left out, grouped by what their omission costs.
struct CtyOmissions {
    /// Calls longer than the table is wide, which the program never finds anyway.
    std::vector<std::string> unreachable;
    /// No loss: a shorter prefix gives the same country and zones.
    std::vector<std::string> nothingLost;
    /// The country stays, the zones change: a shorter prefix gives the same country with other zones.
    std::vector<std::string> zones;
    /// Exact calls that now count for another country or for none.
    std::vector<std::string> lostCalls;
    /// Items that an earlier country has as well, and keeps.
    std::vector<std::string> duplicates;
    /// Primary prefixes of the countries marked with "*". The import leaves these out too, except for the second of two in a row.
    std::vector<std::string> countries;
};

/// Thrown when the import could not read the file, or when the file cannot be made to fit. The text is shown to the user, in UTF-8.
struct CtyError {
    std::string text;
};

/// Splits a file into lines. A line ends with CR LF, LF or CR.
std::vector<std::string> CtyLines(std::string_view content);

/// Reads all countries, including those marked with "*". Throws CtyError with the number of the line at which the import would stop.
std::vector<CtyCountry> ReadCtyFile(const std::vector<std::string>& lines);

/// Returns one message for the user for each thing that the import would misread; an empty list if there is none.
std::vector<std::string> CheckCty(const std::vector<CtyCountry>& countries);

/// A country file that fits: the countries with all items, each flagged as staying or not, and the cost of the omissions.
struct FittedCty {
    std::vector<CtyCountry> countries;
    CtyOmissions omissions;
};

/// Leaves out countries marked with "*", items that an earlier country has as well, and calls too long to be found whose country no other
/// item gives. If the rest is more than `room` prefixes, it leaves out further items until they fit, in this order: items that their own
/// country repeats; then, the shortest first within each step, other calls that are never found, items that can go without loss, items
/// that lose their zones, exact calls. Finally it leaves out exact calls that the program would not find between the import and its next
/// start. Throws CtyError if the rest still does not fit.
FittedCty FitCty(std::vector<CtyCountry> countries, std::size_t room = kPrefixRoom);

/// Formats the lines of a country file that has only the items that stay.
std::vector<std::string> WriteCty(const std::vector<CtyCountry>& countries);

}  // namespace vatro
