// SPDX-License-Identifier: MIT
#include "country/lookup.h"

#include "call/call_analysis.h"
#include "codepage.h"
#include "errors.h"

namespace vatro {

using namespace literals;

namespace {

constexpr std::string_view kEuropeanExceptions = "TA0,TA1,TB0,TB1,TC0,TC1,YM0,YM1,";
constexpr std::string_view kUnknown = "ukendt";

int PrefixStart(const CountryTables& tables, std::string_view text) {
    if (text.empty()) throw RunTimeError(Failure::InvalidCall);
    return tables.gaPfxStart[static_cast<unsigned char>(text.front())];
}

/// The row of Lande for a row of RefPfx: the first row whose prefix is not below the wanted one, or the last row. Lande must be sorted by
/// prefix: equality is not tested, so in an unsorted table the row can be that of another country.
int CountryOf(const CountryTables& tables, const PfxRec& prefix) {
    const int last = tables.CountriesInUse();
    int row = 1;
    while (row < last && prefix.Land.Padded() > tables.Lande[static_cast<std::size_t>(row)].Pfx.Padded()) ++row;
    return row;
}

const LandRec& CountryAt(const CountryTables& tables, int row) {
    return tables.Lande[static_cast<std::size_t>(row)];
}

}  // namespace

FoundCountry FindCountry(const CountryTables& tables, std::string_view call) {
    FoundCountry found;
    std::optional<int> prefix = tables.FindWholeCall(call, PrefixStart(tables, call));
    if (!prefix) {
        found.prefixText = findPfxCall(call);
        if (found.prefixText.empty()) return found;
        prefix = tables.FindPrefix(found.prefixText, PrefixStart(tables, found.prefixText));
    }
    if (prefix) found.row = CountryOf(tables, tables.RefPfx[static_cast<std::size_t>(*prefix)]);
    return found;
}

std::optional<std::int32_t> CountryPoints(const CountryTables& tables, const FoundCountry& found, std::string_view call) {
    constexpr std::int32_t kOutsideEurope = 6;
    if (!found.row || CountryAt(tables, *found.row).Kontinent.Padded() == "EU") return std::nullopt;
    const std::string area = std::string(call.substr(0, 3)) + ",";
    if (kEuropeanExceptions.find(area) != std::string_view::npos) return std::nullopt;
    return kOutsideEurope;
}

bool IsUnknown(const CountryTables& tables, const FoundCountry& found) {
    if (!found.row) return found.prefixText.size() >= 2;
    const LandRec& country = CountryAt(tables, *found.row);
    return country.Pfx.Trimmed().find(kUnknown) != std::string_view::npos ||
           country.Navn.Trimmed().find(kUnknown) != std::string_view::npos;
}

WorkedCountries::Result WorkedCountries::LandWkd(std::string_view call, MarkAction action) {
    const FoundCountry found = FindCountry(tables_, call);
    if (!found.row) return {};
    Result result;
    result.points = CountryPoints(tables_, found, call);
    auto mark = marks_[static_cast<std::size_t>(*found.row)];
    result.changed = action == MarkAction::Unmark ? mark : !mark;
    if (!result.changed) return result;
    if (action != MarkAction::Test) mark = action == MarkAction::Mark;
    result.prefix = CountryAt(tables_, *found.row).Pfx.Padded();
    return result;
}

CountryStatus WorkedCountries::LandStatusTekst(std::string_view call) const {
    const FoundCountry found = FindCountry(tables_, call);
    CountryStatus status{{}, IsUnknown(tables_, found), false};
    if (found.row) {
        status.isNew = !Wkd(*found.row);
        const LandRec& country = CountryAt(tables_, *found.row);
        status.text.append(country.Pfx.Trimmed()).append(": ").append(country.Navn.Trimmed());
        status.text.append(" (").append(country.Kontinent.Padded());
        status.text.append(status.isNew ? "), er nyt land."_t : "), er kørt."_t);
    } else if (status.unknown) {
        status.text = Trim(found.prefixText);
        status.text += ": er ukendt præfix. Call'et bliver gemt i filen 'ukendt.txt', hvis QSOen logges. Kør den!"_t;
    }
    return status;
}

void WorkedCountries::ResetLande() {
    for (int row = 1; row <= tables_.CountriesInUse(); ++row) marks_.reset(static_cast<std::size_t>(row));
}

}  // namespace vatro
