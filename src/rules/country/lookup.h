// SPDX-License-Identifier: MIT
//
// Finds the country of a call, gives the points for a country outside Europe, remembers which countries have been worked, and describes a
// country to the operator.
//
// Every search fails with 5 if the call is empty, and with 9 when CountryTables::FindWholeCall does.
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
    /// The text that was looked up as a prefix; empty if the whole call was found.
    std::string prefixText;
};

/// Looks up the whole call first, then the longest prefix of its country text.
FoundCountry FindCountry(const CountryTables& tables, std::string_view call);

/// The points if the country decides them: 6 for a country outside Europe, otherwise nothing. Calls from the European areas of a
/// country that the tables hold as Asian get nothing either.
std::optional<std::int32_t> CountryPoints(const CountryTables& tables, const FoundCountry& found, std::string_view call);

/// Whether the status text of the country contains the word "ukendt": for an unknown prefix of at least two characters, or for a country
/// whose prefix or name contains the word. The rules of the contest look for the word, so contacts with such a country are treated like
/// those with an unknown prefix. Do not correct this: a station whose tables have such a name would get more points than on its older
/// papers (docs/rules.md).
bool IsUnknown(const CountryTables& tables, const FoundCountry& found);

/// What a search does with the worked mark of the row it finds: sets it, clears it, or only tests it.
enum class MarkAction { Mark, Unmark, Test };

/// The status text about a country, as shown to the operator.
struct CountryStatus {
    /// Empty for a call of one character, which is too short to be a prefix.
    std::string text;
    /// Whether the text contains the word "ukendt".
    bool unknown = false;
    /// Whether the text says that the country has not been worked.
    bool isNew = false;
};

/// Which countries of the tables a log has worked.
class WorkedCountries {
public:
    /// Begins with no country marked. The tables must outlive this object. Marks belong to row numbers and stay there when the rows
    /// change.
    explicit WorkedCountries(const CountryTables& tables) : tables_(tables) {}

    struct Result {
        /// Whether the action took effect. With Mark and Test: the country was not marked, so the contact is a new multiplier. With
        /// Unmark: the country was marked.
        bool changed = false;
        /// The country's prefix, ten characters, if the action took effect; otherwise empty. Points into the row of the tables.
        std::string_view prefix;
        /// The result of CountryPoints for the call. It does not depend on the action.
        std::optional<std::int32_t> points;
    };
    /// Finds the country of a call and applies the action to its mark. If there is no country, nothing changes.
    Result LandWkd(std::string_view call, MarkAction action);

    /// Returns the status text for the country of a call.
    CountryStatus LandStatusTekst(std::string_view call) const;

    /// Whether the country in this row is marked as worked.
    bool Wkd(int row) const { return marks_[static_cast<std::size_t>(row)]; }
    /// Clears the marks of all rows in use.
    void ResetLande();
    /// Takes over the marks of another object for the same tables.
    void TakeMarks(const WorkedCountries& other) { marks_ = other.marks_; }

private:
    const CountryTables& tables_;
    std::bitset<kCountryRows + 1> marks_;
};

}  // namespace vatro
