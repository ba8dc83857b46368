// SPDX-License-Identifier: MIT
//
// Lookups of country, station and points for the current contact. Each asks the rules and stores the result in the desk's state:
// giMult counts the marked countries, giQSOPoint holds the points of the last lookup that decided points.
//
// The order of the lookups therefore matters, and operators see its effect: a lookup that does not decide points leaves giQSOPoint as the
// lookup before it has set it.
#pragma once

#include <string>
#include <string_view>

#include "bars.h"
#include "country/lookup.h"

namespace vatro {

/// Looks up the country of a call and applies the action to its mark in the current log. Returns its ten-character prefix if the
/// action took effect (with Mark and Test: the contact is a new multiplier), otherwise an empty text. Mark and Unmark keep giMult up
/// to date. A country outside Europe sets giQSOPoint to 6, whatever the action. Fails as WorkedCountries::LandWkd does.
std::string RecordCountry(std::string_view call, MarkAction action);

/// Looks up a station of the society by the first six characters of the call and applies the action to its mark. If it is found, sets
/// giQSOPoint to 10.
void RecordStation(std::string_view call, MarkAction action);

/// Sets giQSOPoint to the points of a call; see BeregnPoint.
void RecordPoints(std::string_view call);

/// Returns the country of a call as the status bar shows it. While gbVisLand is off the text is empty and the country does not count
/// as unknown.
CountryStatus ShownCountry(std::string_view call);
/// What a panel with the text of this status is about.
PanelMark MarkOf(const CountryStatus& status);

/// Sets gbDupe: whether gsCall is in the current log already.
void RecordDuplicate();

/// Clears all worked marks and sets giMult to 0.
void ClearWorked();

}  // namespace vatro
