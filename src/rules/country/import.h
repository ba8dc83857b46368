// SPDX-License-Identifier: MIT
//
// The import of a country file: cty.dat, put there by the operator, becomes the tables of countries and prefixes. It goes in
// steps, which the operator sees one by one: read, sort, clean up, and write both tables to their files.
//
// A country file that is missing, damaged or too large is a failure; the files of the tables are still intact then.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "country/tables.h"
#include "lines.h"

namespace vatro {

/// Runs with the number of each row before the row is dealt with.
using RowProgress = std::function<void(int row)>;
/// Runs with the number of prefixes when there are too many, before the import fails.
using OverflowNotice = std::function<void(int count)>;

/// Reads a country file into the tables. Countries marked with "*" are left out. The rows in use are counted when the whole file has
/// been read. Fails with 62 if the file ends in the middle of a country, with 5 on a line that cannot be taken apart, with
/// 6 on a number that is too large, with 9 if there are too many countries or prefixes.
///
/// After `overflow` has told that there are too many prefixes the import fails all the same, although the text of the message
/// promises that the program goes on: tables cut off in the middle would count whole countries for nothing.
void ReadCountryFile(CountryTables& tables, LineSource& file, const OverflowNotice& overflow);

/// Sorts the prefixes that ReadCountryFile has left; see prefix_order.h.
void SortPrefixTable(CountryTables& tables, const RowProgress& progress);

/// Takes the filler off the sorted prefixes, finds the first row of each first character, and indexes the table. A prefix of full length
/// has no filler and is passed over by both, so that until the next start one that stands foremost is not found; FitCty of
/// cty_fit.h leaves such prefixes out.
void CleanUpPrefixTable(CountryTables& tables, const RowProgress& progress);

/// A row of lande.txt and of refpfx.txt.
std::string CountryLine(const LandRec& country);
std::string PrefixLine(const PfxRec& prefix);

}  // namespace vatro
