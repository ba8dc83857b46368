// SPDX-License-Identifier: MIT
//
// The public country file of contest loggers, cty.dat: a header line for each country, then lines with its prefixes.
//
// header line                              prefix lines
//    1-    country name, up to the ":"        5-    items with "," between them, also at the end of a line;
//   27-28  CQ zone                                  the last item of the country ends with ";"
//   32-33  ITU zone
//   37-    continent, up to the ":"         item
//   41-47  latitude                            =    in front: an exact call
//   51-57  longitude                           (n)  CQ zone of this item
//   62-66  UTC offset                          [n]  ITU zone of this item
//   70-    primary prefix, up to the ":"
//
// The procedures fail with 5 where a line lacks what must be found in it.
#pragma once

#include <string_view>

#include "columns.h"

namespace vatro {

/// Fills the sort key of a prefix up to the width of its field: "å", above all digits and capital letters.
inline constexpr char kCtyFyld = '\xE5';

/// A header line in its fields, which point into the line.
struct CtyHoved {
    std::string_view navn;
    std::string_view kontinent;
    std::string_view pfx;
    std::string_view cqZone;
    std::string_view ituZone;
    std::string_view bredde;
    std::string_view længde;
    std::string_view tidsZone;

    /// Marked with "*": a country of one contest alone.
    bool Udelades() const { return pfx.starts_with('*'); }
};

/// An item without its marks. `tekst` points into the line.
struct CtyPost {
    std::string_view tekst;
    FixedText<2> cqZone;
    FixedText<2> ituZone;
    /// Had "=" in front.
    bool kald = false;
};

/// Fails with 5 if a ":" is missing behind name, continent or primary prefix.
CtyHoved LæsCtyHoved(std::string_view linje);

/// The numeric value of latitude, longitude or UTC offset. Fails with 6 if it is too large.
float LæsCtyTal(std::string_view tekst);

/// The items of a prefix line, one after the other.
class CtyPoster {
public:
    CtyPoster(std::string_view linje, const CtyHoved& hoved) : linje_(linje), hoved_(hoved) {}
    /// Whether another item is expected: a separator at the end of the line has none behind it.
    bool Flere() const { return plads_ < linje_.size(); }
    /// The next item as it stands. Fails with 5 if neither "," nor ";" follows.
    std::string_view NæsteTekst();
    /// The next item, taken apart. Fails with 5 as above, and if a bracket of an item has no partner.
    CtyPost Næste() { return Opdel(NæsteTekst(), hoved_); }

    static CtyPost Opdel(std::string_view tekst, const CtyHoved& hoved);

private:
    std::string_view linje_;
    const CtyHoved& hoved_;
    /// Column of the next item.
    std::size_t plads_ = 5;
};

}  // namespace vatro
