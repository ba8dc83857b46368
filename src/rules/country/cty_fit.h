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
inline constexpr std::size_t kPladsTilPræfikser = 5999;

struct CtyItem {
    /// As it stands in the file, marks included.
    std::string tekst;
    /// Without marks.
    std::string helt;
    /// Without marks, cut as the table cuts it.
    std::string pfx;
    FixedText<2> cqZone;
    FixedText<2> ituZone;
    bool kald = false;
    bool med = true;
};

struct CtyLand {
    /// The header line.
    std::string hoved;
    std::string pfx;
    std::vector<CtyItem> poster;
};

/// What has been left out, and what that costs.
struct CtyUdeladt {
    /// Calls that are longer than the table is wide, and that the program therefore never finds.
    std::vector<std::string> uopnåelige;
    /// A shorter prefix gives the same country and zones.
    std::vector<std::string> intetTabt;
    /// A shorter prefix gives the same country with other zones.
    std::vector<std::string> zoner;
    /// Exact calls that are now counted for another country or none.
    std::vector<std::string> kald;
    /// Stood under an earlier country as well, which keeps them.
    std::vector<std::string> dubletter;
    /// Countries marked with "*", by primary prefix. The import leaves them out, too, but for the second of two.
    std::vector<std::string> lande;
};

/// The file could not be read as the import would, or cannot be made to fit; the text is for the user, in UTF-8.
struct CtyFejl {
    std::string tekst;
};

/// The lines of a file, which end with CR LF, LF or CR.
std::vector<std::string> CtyLinjer(std::string_view indhold);

/// Reads all countries, those marked with "*" too. Throws CtyFejl with the number of the line that stops the import.
std::vector<CtyLand> LæsCtyFil(const std::vector<std::string>& linjer);

/// What keeps the import from taking the file as it is meant, one text for the user each; none if nothing does.
std::vector<std::string> KontrollerCty(const std::vector<CtyLand>& lande);

/// Leaves out countries marked with "*", items that stand under an earlier country, and calls that are too long to be found
/// and that no other item leads to their country; then, until the rest fits, other calls that are never found, items without which nothing
/// is lost, items that lose their zones, exact calls, in each case the shortest first. At last go exact calls that the import would not
/// find before the next start. Throws CtyFejl if the rest does not fit.
CtyUdeladt TilpasCty(std::vector<CtyLand>& lande, std::size_t plads = kPladsTilPræfikser);

/// The lines of a file with the items that stay.
std::vector<std::string> SkrivCty(const std::vector<CtyLand>& lande);

}  // namespace vatro
