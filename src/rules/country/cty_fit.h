// SPDX-License-Identifier: MIT
//
// A country file in memory, for the program vatro-cty: what the import would say to it, and which items can be left out so that
// the table of prefixes holds the rest.
//
// The import takes every item, an exact call too, as a prefix: a call belongs to the country of the longest item that
// begins it. So an item can go without loss if the longest shorter one that stays gives the same country and zones. An
// item with a slash is one call, which the program finds whole or else by the text that decides its country: LU1DHL/D
// belongs to D once its own item has gone, not to LU.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "columns.h"

namespace vatro {

/// One more is the spare row of the import's sort, whose prefix is lost.
inline constexpr std::size_t kPrefixRoom = 5999;

struct CtyItem {
    /// As it stands in the file, marks included.
    std::string text;
    /// Without marks.
    std::string bare;
    /// Without marks, cut as the table cuts it.
    std::string prefix;
    FixedText<2> cqZone;
    FixedText<2> ituZone;
    bool isExactCall = false;
    bool stays = true;
};

struct CtyCountry {
    /// The header line.
    std::string header;
    std::string prefix;
    std::vector<CtyItem> items;
};

/// What has been left out, and what that costs.
struct CtyOmissions {
    /// Calls that are longer than the table is wide, and that the program therefore never finds.
    std::vector<std::string> unreachable;
    /// A shorter prefix gives the same country and zones.
    std::vector<std::string> nothingLost;
    /// A shorter prefix gives the same country with other zones.
    std::vector<std::string> zones;
    /// Exact calls that are now counted for another country or none.
    std::vector<std::string> lostCalls;
    /// Stood under an earlier country as well, which keeps them.
    std::vector<std::string> duplicates;
    /// Countries marked with "*", by primary prefix. The import leaves them out, too, but for the second of two.
    std::vector<std::string> countries;
};

/// The file could not be read as the import would, or cannot be made to fit; the text is for the user, in UTF-8.
struct CtyError {
    std::string text;
};

/// The lines of a file, which end with CR LF, LF or CR.
std::vector<std::string> CtyLines(std::string_view content);

/// Reads all countries, those marked with "*" too. Throws CtyError with the number of the line that stops the import.
std::vector<CtyCountry> ReadCtyFile(const std::vector<std::string>& lines);

/// What keeps the import from taking the file as it is meant, one text for the user each; none if nothing does.
std::vector<std::string> CheckCty(const std::vector<CtyCountry>& countries);

/// A country file that fits: the items that stay, and those that do not, in the countries, and what that costs.
struct FittedCty {
    std::vector<CtyCountry> countries;
    CtyOmissions omissions;
};

/// Leaves out countries marked with "*", items that stand under an earlier country, and calls that are too long to be found
/// and that no other item leads to their country; then, until the rest fits, other calls that are never found, items without which nothing
/// is lost, items that lose their zones, exact calls, in each case the shortest first. At last go exact calls that the import would not
/// find before the next start. Throws CtyError if the rest does not fit.
FittedCty FitCty(std::vector<CtyCountry> countries, std::size_t room = kPrefixRoom);

/// The lines of a file with the items that stay.
std::vector<std::string> WriteCty(const std::vector<CtyCountry>& countries);

}  // namespace vatro
