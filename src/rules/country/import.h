// SPDX-License-Identifier: MIT
//
// The import of a country file: turns cty.dat, which the operator provides, into the tables of countries and prefixes. It runs in
// steps that the operator sees one by one: read, sort, clean up, write both tables to their files.
//
// A missing, damaged or too large country file is a failure; the table files on disk are then unchanged.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "country/cty_file.h"
#include "country/tables.h"
#include "lines.h"

namespace vatro {

/// Called with the number of each row before the row is processed.
using RowProgress = std::function<void(int row)>;
/// Called with the number of prefixes if there are too many, before the import fails.
using OverflowNotice = std::function<void(int count)>;

/// Builds new tables from a country file. Values that the file does not set are kept from the tables it starts with.
class CountryImport {
public:
    explicit CountryImport(const CountryTables& before) : rows_(std::make_unique<CountryRows>(before.Rows())) {}

    /// Reads the file. Countries marked with "*" are left out. Fails with 62 if the file ends in the middle of a country, with 5 on a
    /// line that cannot be split into its fields, with 6 on a number that is too large, with 9 if there are too many countries or
    /// prefixes.
    ///
    /// With too many prefixes the import fails after calling `overflow`, although the message shown by it promises that the program goes
    /// on. Do not go on instead: with truncated tables the contacts with whole countries would count nothing.
    void Read(LineSource& file, const OverflowNotice& overflow);

    /// Sorts the prefixes; see prefix_order.h.
    void Sort(const RowProgress& progress);

    /// Removes the filler from the sorted prefixes and finds the first row of each first character. Both steps skip a prefix of full
    /// length, which has no filler. If such a prefix comes first for its character, it is not found until the program is started again;
    /// FitCty of cty_fit.h leaves such prefixes out.
    void CleanUp(const RowProgress& progress);

    /// For CountryTables::Take.
    const CountryRows& Rows() const { return *rows_; }

private:
    void ReadCountry(LineSource& file, const OverflowNotice& overflow);
    void StoreCountry(const CtyHeader& header);
    void StorePrefix(const CtyEntry& entry, const OverflowNotice& overflow);

    /// On the heap, because the tables are too large for the stack of some systems.
    std::unique_ptr<CountryRows> rows_;
    /// Countries read so far.
    int countries_ = 0;
    int prefixes_ = 0;
};

/// Format a row of lande.txt and of refpfx.txt.
std::string CountryLine(const LandRec& country);
inline constexpr std::size_t kPrefixLineLength = 2 * kPrefixLength + 5;
std::array<char, kPrefixLineLength> PrefixLine(const PfxRec& prefix);

}  // namespace vatro
