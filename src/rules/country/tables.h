// SPDX-License-Identifier: MIT
//
// The country data: countries and their prefixes, in two tables in memory and two files in gsFDLib.
//
// lande.txt, one line a country          refpfx.txt, one line a prefix or exact call
//    1-10  primary prefix                   1-10  prefix, a longer one before a shorter it begins with
//   11-35  name                            11-20  primary prefix of the country
//   36-37  continent                       21-22  CQ zone
//   38     blank                           23     blank
//   39-43  UTC offset, a number            24-25  ITU zone
//
// Rows are counted from 1; row 0 is never filled and never found.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "columns.h"

namespace vatro {

inline constexpr int kCountryRows = 500;
inline constexpr int kPrefixRows = 6000;
inline constexpr std::size_t kPrefixLength = 10;

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
    /// Worked in the current log. In no file.
    bool Wkd = false;
};

struct PfxRec {
    /// Prefix or exact call.
    FixedText<kPrefixLength> Pfx;
    /// Pfx of the country's row.
    FixedText<kPrefixLength> Land;
    FixedText<2> ITUzone;
    FixedText<2> CQzone;
};

extern std::array<LandRec, kCountryRows + 1> Lande;
extern std::array<PfxRec, kPrefixRows + 1> RefPfx;
/// Rows in use. After a load that failed at the end of a table it counts the row that did not fit.
extern std::int16_t giLande;
extern std::int16_t giRefPfx;
/// By the code of a character: the first row of RefPfx whose prefix begins with it, 0 if there is none.
extern std::array<std::int16_t, 257> gaPfxStart;

/// Rows of a table that can be visited: the count, but no row beyond the table.
int CountriesInUse();

/// Fills Lande and giLande from lande.txt. Any failure, also a table that overflows or a number that cannot be read, gives
/// one message; what was read stays.
void IndlæsLande();
/// Fills RefPfx, giRefPfx and gaPfxStart from refpfx.txt, with failures as above.
void IndlæsRefPfx();

/// The first row from `start` on whose prefix is the whole of `call`, trimmed of blanks; 0 if no row in use is. Fails
/// with 9 (index) if a full table holds none: the search runs one row beyond it.
int FindWholeCall(std::string_view call, int start);
/// The first row from `start` on whose prefix begins the text `s`: in a sorted table the longest. 0 and failure as above.
int FindPrefix(std::string_view s, int start);

/// Rebuilds what the two searches use. To be called whenever rows of RefPfx or giRefPfx have changed.
void IndexPrefixes();

/// Empty tables, as before the start.
void ResetTables();

}  // namespace vatro
