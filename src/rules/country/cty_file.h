// SPDX-License-Identifier: MIT
//
// The public country file of contest loggers, cty.dat: for each country a header line, then lines with its prefixes.
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
// The functions fail with 5 if a line lacks a required separator or bracket.
#pragma once

#include <string_view>

#include "columns.h"

namespace vatro {

/// Pads the sort key of a prefix to the width of its field. The character is "å", which sorts above all digits and capital letters.
inline constexpr char kCtyFiller = '\xE5';

/// The fields of a header line. They point into the line, which must outlive them.
struct CtyHeader {
    std::string_view name;
    std::string_view continent;
    std::string_view prefix;
    std::string_view cqZone;
    std::string_view ituZone;
    std::string_view latitude;
    std::string_view longitude;
    std::string_view utcOffset;

    /// Whether the country is marked with "*", that is, counts as a country in one particular contest only.
    bool IsOmitted() const { return prefix.starts_with('*'); }
};

/// An item without its marks. `text` points into the line, which must outlive it.
struct CtyEntry {
    std::string_view text;
    FixedText<2> cqZone;
    FixedText<2> ituZone;
    /// Whether the item had "=" in front.
    bool isExactCall = false;
};

/// Splits a header line. Fails with 5 if there is no ":" after name, continent or primary prefix.
CtyHeader ReadCtyHeader(std::string_view line);

/// Converts latitude, longitude or UTC offset to a number. Fails with 6 if it is too large.
float ReadCtyNumber(std::string_view text);

/// Reads the items of a prefix line one by one. The line and the header must outlive the reader.
class CtyEntryReader {
public:
    CtyEntryReader(std::string_view line, const CtyHeader& header) : line_(line), header_(header) {}
    /// Whether another item follows. No item follows a separator at the end of the line.
    bool HasMore() const { return column_ < line_.size(); }
    /// Returns the next item with its marks. Fails with 5 if neither "," nor ";" follows it.
    std::string_view NextText();
    /// Returns the next item without its marks. Fails as NextText does, and with 5 if a bracket of the item is not closed.
    CtyEntry Next() { return TakeApart(NextText(), header_); }

    /// Splits the text of one item into its parts; a zone that the item does not give is that of the header. Fails with 5 if a bracket is
    /// not closed.
    static CtyEntry TakeApart(std::string_view text, const CtyHeader& header);

private:
    std::string_view line_;
    const CtyHeader& header_;
    /// Column of the next item.
    std::size_t column_ = 5;
};

}  // namespace vatro
