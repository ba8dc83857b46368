// SPDX-License-Identifier: MIT
//
// The country data: countries and their prefixes, in two tables in memory and two files in the program's data directory.
//
// lande.txt, one line a country          refpfx.txt, one line a prefix or exact call
//    1-10  primary prefix                   1-10  prefix, a longer one before a shorter it begins with
//   11-35  name                            11-20  primary prefix of the country
//   36-37  continent                       21-22  CQ zone
//   38     blank                           23     blank
//   39-43  UTC offset, a number            24-25  ITU zone
//
// Rows are counted from 1; row 0 is never filled and never found. The names of the rows and their fields are those that the
// files' makers know.
#pragma once

#include <array>
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

/// A country. Whether it has been worked is another matter: see lookup.h.
struct LandRec {
    /// Primary prefix, the key by which prefixes point here.
    FixedText<kPrefixLength> Pfx;
    FixedText<25> Navn;
    /// "EU" decides the points; anything else counts as outside Europe.
    FixedText<2> Kontinent;
    /// Degrees as in the country file; filled by the import, not in lande.txt, read by nothing.
    float Bredde = 0;
    float Laengde = 0;
    /// Hours from universal time; the import writes it to lande.txt, and nothing else reads it.
    float TidsZone = 0;
};

/// A prefix.
struct PfxRec {
    /// Prefix or exact call.
    FixedText<kPrefixLength> Pfx;
    /// Pfx of the country's row.
    FixedText<kPrefixLength> Land;
    FixedText<2> ITUzone;
    FixedText<2> CQzone;
};

/// Both tables. Whoever changes rows of RefPfx or giRefPfx calls IndexPrefixes afterwards; the searches need it.
class CountryTables {
public:
    std::array<LandRec, kCountryRows + 1> Lande;
    std::array<PfxRec, kPrefixRows + 1> RefPfx;
    /// Rows in use. After a load that failed at the end of a table it counts the row that did not fit.
    std::int16_t giLande = 0;
    std::int16_t giRefPfx = 0;
    /// By the code of a character: the first row of RefPfx whose prefix begins with it, 0 if there is none.
    std::array<std::int16_t, 257> gaPfxStart{};

    /// Rows of Lande that can be visited: the count, but no row beyond the table.
    int CountriesInUse() const;

    /// The first row from `start` on whose prefix is the whole of `call`, trimmed of blanks, if a row in use is. Fails with 9
    /// (index) if a full table holds none: the search runs one row beyond it.
    std::optional<int> FindWholeCall(std::string_view call, int start) const;
    /// The first row from `start` on whose prefix begins the text: in a sorted table the longest. Fails as above.
    std::optional<int> FindPrefix(std::string_view text, int start) const;

    /// Rebuilds what the two searches use.
    void IndexPrefixes();

    /// No country is in use any more; ReadCountry fills the rows from the first on.
    void BeginCountries() { giLande = 0; }
    /// Takes the next line of lande.txt. Fails with 9 where the table is full, with the row counted, and with 13 or 6 where the
    /// offset is no number.
    void ReadCountry(std::string_view line);
    /// No prefix is in use any more; ReadPrefix fills the rows from the first on, and gaPfxStart.
    void BeginPrefixes();
    /// Takes the next line of refpfx.txt. Fails with 9 where the table is full, with the row counted.
    void ReadPrefix(std::string_view line);

private:
    // A search of RefPfx looks from a start row to the end of the table for the first row that is met. What the rows hold is
    // found by a table of hashes, so that a search without a hit costs no more than one with a hit; `nextInBucket_` joins the
    // rows of one hash in ascending order.
    static constexpr std::size_t kBuckets = 16384;
    static std::size_t BucketOf(std::uint32_t hash) { return (hash ^ (hash >> 15U)) % kBuckets; }
    /// The first row from `start` on that holds `prefix`, whose hash is given; 0 if none does.
    int FirstRow(std::string_view prefix, std::uint32_t hash, int start) const;
    /// The answer of a search for a row that is none.
    std::optional<int> FoundRow(int row) const;

    std::array<std::int16_t, kBuckets> buckets_{};
    std::array<std::int16_t, kPrefixRows + 1> nextInBucket_{};
    /// First character of the prefix read last; nothing before the first.
    std::optional<char> lastFirst_;
};

}  // namespace vatro
