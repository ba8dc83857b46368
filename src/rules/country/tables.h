// SPDX-License-Identifier: MIT
//
// The country data: countries and their prefixes, in two tables in memory and two files in the program's data directory.
//
// lande.txt, one line a country          refpfx.txt, one line a prefix or exact call
//    1-10  primary prefix                   1-10  prefix; one that begins with another comes before it
//   11-35  name                            11-20  primary prefix of the country
//   36-37  continent                       21-22  CQ zone
//   38     blank                           23     blank
//   39-43  UTC offset, a number            24-25  ITU zone
//
// Rows are counted from 1; row 0 is never filled and never found. The Danish names of the rows and fields are those used by the
// people who make these files.
#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "columns.h"

namespace vatro {

inline constexpr int kCountryRows = 500;
inline constexpr int kPrefixRows = 6000;
inline constexpr std::size_t kPrefixLength = 10;

/// A country. The worked marks are kept elsewhere: see lookup.h.
struct LandRec {
    /// Primary prefix, the key to which PfxRec::Land refers.
    FixedText<kPrefixLength> Pfx;
    FixedText<25> Navn;
    /// Continent. Anything but "EU" counts as outside Europe and decides the points.
    FixedText<2> Kontinent;
    /// Latitude ("bredde") and longitude ("længde") in degrees, as in the country file. The import fills them; lande.txt does not
    /// hold them and nothing reads them.
    float Bredde = 0;
    float Laengde = 0;
    /// Offset from universal time in hours. The import writes it to lande.txt; nothing else reads it.
    float TidsZone = 0;
};

/// A prefix.
struct PfxRec {
    /// Prefix or exact call.
    FixedText<kPrefixLength> Pfx;
    /// Pfx of the country's row, that is, its primary prefix and not its name.
    FixedText<kPrefixLength> Land;
    FixedText<2> ITUzone;
    FixedText<2> CQzone;
};

/// The rows of both tables.
struct CountryRows {
    std::array<LandRec, kCountryRows + 1> Lande;
    std::array<PfxRec, kPrefixRows + 1> RefPfx;
    /// Rows in use. After a load that failed because the table is full, the row that did not fit is counted too.
    std::int16_t giLande = 0;
    std::int16_t giRefPfx = 0;
    /// Indexed by character code: the first row of RefPfx whose prefix begins with the character, 0 if there is none.
    std::array<std::int16_t, 257> gaPfxStart{};
};

/// Both tables with the indexes of their searches. After ReadPrefix call IndexPrefixes before the next search.
class CountryTables {
public:
    const CountryRows& Rows() const { return rows_; }
    /// Replaces all rows.
    void Take(const CountryRows& rows);

    /// The number of rows of Lande that may be read: giLande, but at most the size of the table.
    int CountriesInUse() const;

    /// The first row in use, from `start` on, whose prefix, without the blanks around it, equals the whole of `call`; nothing if there is
    /// none. Fails with 9 (index out of range) if there is none and the table is full, since the search then runs one row past the end
    /// (docs/rules.md).
    std::optional<int> FindWholeCall(std::string_view call, int start) const;
    /// The first row from `start` on whose prefix the text begins with; in a sorted table this is the longest such prefix. Fails as
    /// FindWholeCall does.
    std::optional<int> FindPrefix(std::string_view text, int start) const;

    /// The row of Lande for a row of RefPfx: the first row in use whose prefix is not below the wanted one, or the last row. Lande must be
    /// sorted by prefix: equality is not tested, so in an unsorted table the row can be that of another country.
    int CountryOf(int prefixRow) const;

    /// Rebuilds the index of FindWholeCall and FindPrefix.
    void IndexPrefixes();

    /// Empties the table of countries; ReadCountry then fills the rows from the first on.
    void BeginCountries() { rows_.giLande = 0; }
    /// Adds a country from the next line of lande.txt. Fails with 9 if the table is full, with the row counted, and with 13 or 6 if
    /// the offset is not a valid number.
    void ReadCountry(std::string_view line);
    /// Empties the table of prefixes; ReadPrefix then fills the rows from the first on, and gaPfxStart.
    void BeginPrefixes();
    /// Adds a prefix from the next line of refpfx.txt. Fails with 9 if the table is full, with the row counted.
    void ReadPrefix(std::string_view line);

private:
    // A search of RefPfx looks for the first matching row from a start row to the end of the table. A hash table holds the rows, so
    // that a search without a hit costs no more than one with a hit; `nextInBucket_` links the rows of one bucket in ascending order.
    static constexpr std::size_t kBuckets = 16384;
    static std::size_t BucketOf(std::uint32_t hash) { return (hash ^ (hash >> 15U)) % kBuckets; }
    /// The first row from `start` on that holds `prefix`, whose hash is given; 0 if there is none.
    int FirstRow(std::string_view prefix, std::uint32_t hash, int start) const;
    /// Turns a row number into the result of a search: nothing for 0. Fails with 9 as FindWholeCall does.
    std::optional<int> FoundRow(int row) const;

    /// A prefix as two numbers that compare as its text does.
    struct SortKey {
        std::uint64_t front = 0;
        std::uint16_t back = 0;
        // clang-tidy 14 takes a 0 of the generated code for a null pointer.
        // NOLINTNEXTLINE(modernize-use-nullptr)
        friend auto operator<=>(const SortKey&, const SortKey&) = default;
    };
    static SortKey KeyOf(const FixedText<kPrefixLength>& prefix);
    void IndexCountry(std::size_t row);

    CountryRows rows_;
    /// For each row of Lande the greatest prefix from the first row to this one. The first row whose prefix is not below a wanted one is
    /// also the first whose greatest prefix is not, and these ascend, whether or not the table is sorted.
    std::array<SortKey, kCountryRows + 1> greatest_{};
    std::array<std::int16_t, kBuckets> buckets_{};
    std::array<std::int16_t, kPrefixRows + 1> nextInBucket_{};
    /// First character of the prefix read last; nothing before the first read.
    std::optional<char> lastFirst_;
};

}  // namespace vatro
