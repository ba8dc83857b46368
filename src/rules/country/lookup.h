// SPDX-License-Identifier: MIT
//
// From a call to its country: the worked marks, the points outside Europe, and the words for the operator.
//
// Every search fails with 5 on an empty call, and with 9 as CountryTables::FindWholeCall does.
#pragma once

#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "country/tables.h"

namespace vatro {

/// The country of a call.
struct FoundCountry {
    /// Row of CountryTables::Lande; nothing for an unknown prefix.
    std::optional<int> row;
    /// The text that was looked up as a prefix; empty where the call was found whole.
    std::string prefixText;
};

FoundCountry FindCountry(const CountryTables& tables, std::string_view call);

/// The points that the country decides: 6 outside Europe, but for the calls of the European areas of a country that the tables
/// hold as Asian.
std::optional<std::int32_t> CountryPoints(const CountryTables& tables, const FoundCountry& found, std::string_view call);

/// Whether the status text of the country contains the word "ukendt": an unknown prefix, or a country of that name. The rules of
/// the contest look for the word, so a country so called counts nothing either.
bool IsUnknown(const CountryTables& tables, const FoundCountry& found);

/// What a search does with the mark of what it finds: marks it as worked, takes the mark away, or only asks.
enum class MarkAction { Mark, Unmark, Test };

/// A country as the operator is told of it.
struct CountryStatus {
    /// Empty for a single character, which is no prefix yet.
    std::string text;
    /// Whether the text contains the word "ukendt".
    bool unknown = false;
};

/// Which countries of the tables a log has worked.
class WorkedCountries {
public:
    /// None. The tables must live as long as this; marks stay with their rows when the rows change.
    explicit WorkedCountries(const CountryTables& tables) : tables_(tables) {}

    struct Result {
        /// Whether the action took effect: with Mark and Test, the country was not marked, so that the contact is a new
        /// multiplier; with Unmark, it was.
        bool changed = false;
        /// The ten characters of the country's prefix where it took effect, else nothing. Lives as long as the tables' row.
        std::string_view prefix;
        /// What the country decides, whatever the action.
        std::optional<std::int32_t> points;
    };
    /// Finds the country of a call and does this to its mark. No country: nothing changes.
    Result LandWkd(std::string_view call, MarkAction action);

    /// Words the country of a call.
    CountryStatus LandStatusTekst(std::string_view call) const;

    bool Wkd(int row) const { return marks_[static_cast<std::size_t>(row)]; }
    /// Clears the marks of all rows in use.
    void ResetLande();

private:
    const CountryTables& tables_;
    std::bitset<kCountryRows + 1> marks_;
};

}  // namespace vatro
