// SPDX-License-Identifier: MIT
#include "country/import.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include "country/cty_file.h"
#include "country/prefix_order.h"
#include "errors.h"
#include "numbers.h"

namespace vatro {

namespace {

/// Formats a number for the table files: "-" or a blank, the number in its shortest form, a blank.
std::string TableNumber(float number) {
    // Enough for the smallest float, which has 45 decimals.
    std::array<char, 64> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), std::fabs(number), std::chars_format::fixed).ptr;
    return (number < 0 ? "-" : " ") + std::string(digits.data(), end) + " ";
}

/// How many characters of a sorted prefix stand before its filler; nothing if there is no filler.
std::optional<std::size_t> LengthBeforeFiller(const FixedText<kPrefixLength>& prefix) {
    const std::string_view characters = prefix.Padded();
    if (characters.back() != kCtyFiller) return std::nullopt;
    return static_cast<std::size_t>(std::ranges::find(characters, kCtyFiller) - characters.begin());
}

}  // namespace

void CountryImport::Read(LineSource& file, const OverflowNotice& overflow) {
    while (!file.AtEnd()) ReadCountry(file, overflow);
    // The counts are set only here, so that rows of a file that fails in the middle are not used.
    rows_->giLande = ToInt16(countries_);
    rows_->giRefPfx = ToInt16(prefixes_);
}

void CountryImport::ReadCountry(LineSource& file, const OverflowNotice& overflow) {
    std::string line = file.Next();
    CtyHeader header = ReadCtyHeader(line);
    if (header.IsOmitted()) {
        do line = file.Next();
        while (!line.ends_with(':'));
        // This header is not tested for "*" again: of two marked countries in a row the second one is kept. Country files that were
        // made for this import rely on it; their users would lose a country.
        header = ReadCtyHeader(line);
    }
    StoreCountry(header);
    std::string prefixLine;
    do {
        prefixLine = file.Next();
        CtyEntryReader entries(prefixLine, header);
        while (entries.HasMore()) StorePrefix(entries.Next(), overflow);
    } while (!prefixLine.ends_with(';'));
}

void CountryImport::StoreCountry(const CtyHeader& header) {
    if (++countries_ > kCountryRows) throw RunTimeError(Failure::IndexOutOfRange);
    LandRec& country = rows_->Lande[static_cast<std::size_t>(countries_)];
    country.Pfx = header.prefix;
    country.Navn = header.name;
    country.Kontinent = header.continent;
    country.Bredde = ReadCtyNumber(header.latitude);
    country.Laengde = ReadCtyNumber(header.longitude);
    country.TidsZone = ReadCtyNumber(header.utcOffset);
}

void CountryImport::StorePrefix(const CtyEntry& entry, const OverflowNotice& overflow) {
    if (++prefixes_ > kPrefixRows) {
        overflow(prefixes_);
        throw RunTimeError(Failure::IndexOutOfRange);
    }
    PfxRec& row = rows_->RefPfx[static_cast<std::size_t>(prefixes_)];
    row.Land = rows_->Lande[static_cast<std::size_t>(countries_)].Pfx;
    row.Pfx.Fill(entry.text, kCtyFiller);
    row.ITUzone = entry.ituZone;
    row.CQzone = entry.cqZone;
}

void CountryImport::Sort(const RowProgress& progress) {
    SortPrefixes(rows_->RefPfx, rows_->giRefPfx, progress);
}

void CountryImport::CleanUp(const RowProgress& progress) {
    std::optional<char> last;
    for (int i = 1; i <= rows_->giRefPfx; ++i) {
        progress(i);
        FixedText<kPrefixLength>& prefix = rows_->RefPfx[static_cast<std::size_t>(i)].Pfx;
        const FixedText<kPrefixLength> filled = prefix;
        const auto length = LengthBeforeFiller(filled);
        if (!length) continue;
        prefix = filled.Padded().substr(0, *length);
        const char first = prefix.Padded().front();
        if (first == last) continue;
        last = first;
        rows_->gaPfxStart[static_cast<unsigned char>(first)] = static_cast<std::int16_t>(i);
    }
}

std::string CountryLine(const LandRec& country) {
    std::string line;
    line.append(country.Pfx.Padded()).append(country.Navn.Padded()).append(country.Kontinent.Padded()).append(" ");
    return line + TableNumber(country.TidsZone);
}

std::array<char, kPrefixLineLength> PrefixLine(const PfxRec& prefix) {
    std::array<char, kPrefixLineLength> line{};
    char* end = line.data();
    const auto append = [&end](std::string_view column) { end += column.copy(end, column.size()); };
    append(prefix.Pfx.Padded());
    append(prefix.Land.Padded());
    append(prefix.CQzone.Padded());
    append(" ");
    append(prefix.ITUzone.Padded());
    return line;
}

}  // namespace vatro
