// SPDX-License-Identifier: MIT
#include "country/lookup.h"

#include <array>

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
    return tables.Rows().gaPfxStart[static_cast<unsigned char>(text.front())];
}

const LandRec& CountryAt(const CountryTables& tables, int row) {
    return tables.Rows().Lande[static_cast<std::size_t>(row)];
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
    if (prefix) found.row = tables.CountryOf(*prefix);
    return found;
}

std::optional<std::int32_t> CountryPoints(const CountryTables& tables, const FoundCountry& found, std::string_view call) {
    constexpr std::int32_t kOutsideEurope = 6;
    if (!found.row || CountryAt(tables, *found.row).Kontinent.Padded() == "EU") return std::nullopt;
    // The first three characters and a comma. A shorter call is found too if one of the areas ends with it.
    std::array<char, 4> area{};
    const std::size_t length = call.copy(area.data(), 3);
    area[length] = ',';
    if (kEuropeanExceptions.find(std::string_view(area.data(), length + 1)) != std::string_view::npos) return std::nullopt;
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
