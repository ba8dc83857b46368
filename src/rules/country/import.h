// SPDX-License-Identifier: MIT
//
// The import of a country file: cty.dat, put there by the operator, becomes the tables of countries and prefixes. It goes in
// steps, which the operator sees one by one: read, sort, clean up, and write both tables to their files.
//
// A country file that is missing, damaged or too large is a failure; the files of the tables are still intact then.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "country/cty_file.h"
#include "country/tables.h"
#include "lines.h"

namespace vatro {

/// Runs with the number of each row before the row is dealt with.
using RowProgress = std::function<void(int row)>;
/// Runs with the number of prefixes when there are too many, before the import fails.
using OverflowNotice = std::function<void(int count)>;

/// Makes tables anew from a country file. What the file does not touch keeps the values of the tables it begins with.
class CountryImport {
public:
    explicit CountryImport(const CountryTables& before) : tables_(std::make_unique<CountryTables>(before)) {}

    /// Reads the file. Countries marked with "*" are left out. Fails with 62 if the file ends in the middle of a country, with 5 on a
    /// line that cannot be taken apart, with 6 on a number that is too large, with 9 if there are too many countries or prefixes.
    ///
    /// After `overflow` has told that there are too many prefixes the import fails all the same, although the text of the message
    /// promises that the program goes on: tables cut off in the middle would count whole countries for nothing.
    void Read(LineSource& file, const OverflowNotice& overflow);

    /// Sorts the prefixes; see prefix_order.h.
    void Sort(const RowProgress& progress);

    /// Takes the filler off the sorted prefixes, finds the first row of each first character, and indexes the table. A prefix of full
    /// length has no filler and is passed over by both, so that until the next start one that stands foremost is not found; FitCty of
    /// cty_fit.h leaves such prefixes out.
    void CleanUp(const RowProgress& progress);

    const CountryTables& Tables() const { return *tables_; }

private:
    void ReadCountry(LineSource& file, const OverflowNotice& overflow);
    void StoreCountry(const CtyHeader& header);
    void StorePrefix(const CtyEntry& entry, const OverflowNotice& overflow);

    /// Too large for the stack of every system.
    std::unique_ptr<CountryTables> tables_;
    /// Read so far.
    int countries_ = 0;
    int prefixes_ = 0;
};

/// A row of lande.txt and of refpfx.txt.
std::string CountryLine(const LandRec& country);
std::string PrefixLine(const PfxRec& prefix);

}  // namespace vatro
