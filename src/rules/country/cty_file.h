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
inline constexpr char kCtyFiller = '\xE5';

/// A header line in its fields, which point into the line.
struct CtyHeader {
    std::string_view name;
    std::string_view continent;
    std::string_view prefix;
    std::string_view cqZone;
    std::string_view ituZone;
    std::string_view latitude;
    std::string_view longitude;
    std::string_view utcOffset;

    /// Marked with "*": a country of one contest alone.
    bool IsOmitted() const { return prefix.starts_with('*'); }
};

/// An item without its marks. `text` points into the line.
struct CtyEntry {
    std::string_view text;
    FixedText<2> cqZone;
    FixedText<2> ituZone;
    /// Had "=" in front.
    bool isExactCall = false;
};

/// Fails with 5 if a ":" is missing behind name, continent or primary prefix.
CtyHeader ReadCtyHeader(std::string_view line);

/// The numeric value of latitude, longitude or UTC offset. Fails with 6 if it is too large.
float ReadCtyNumber(std::string_view text);

/// The items of a prefix line, one after the other.
class CtyEntryReader {
public:
    CtyEntryReader(std::string_view line, const CtyHeader& header) : line_(line), header_(header) {}
    /// Whether another item is expected: a separator at the end of the line has none behind it.
    bool HasMore() const { return column_ < line_.size(); }
    /// The next item as it stands. Fails with 5 if neither "," nor ";" follows.
    std::string_view NextText();
    /// The next item, taken apart. Fails with 5 as above, and if a bracket of an item has no partner.
    CtyEntry Next() { return TakeApart(NextText(), header_); }

    static CtyEntry TakeApart(std::string_view text, const CtyHeader& header);

private:
    std::string_view line_;
    const CtyHeader& header_;
    /// Column of the next item.
    std::size_t column_ = 5;
};

}  // namespace vatro
