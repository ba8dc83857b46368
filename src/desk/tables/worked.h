// SPDX-License-Identifier: MIT
//
// Lookups of country, station and points for the contact at hand. Each asks the rules and writes down in the desk's state what came
// of it: giMult counts the marked countries, giQSOPoint keeps the points decided last, in the order in which they were decided.
//
// That order is part of what the operators see: a lookup that decides nothing leaves the points of the one before.
#pragma once

#include <string>
#include <string_view>

#include "country/lookup.h"

namespace vatro {

/// Looks the country of a call up in the current log. Gives its ten-character prefix if the action took effect - with Mark and Test: the
/// contact is a new multiplier - and nothing otherwise. Mark and Unmark keep giMult in step. A country outside Europe sets
/// giQSOPoint to 6, whatever the action. Fails as WorkedCountries::LandWkd does.
std::string NoteCountry(std::string_view call, MarkAction action);

/// Looks a station of the society up by the first six characters of the call; one that is found sets giQSOPoint to 10.
void NoteStation(std::string_view call, MarkAction action);

/// Sets giQSOPoint to the points of a call; see BeregnPoint.
void NotePoints(std::string_view call);

/// The country of a call as the status bar shows it: nothing, and not unknown, while gbVisLand is off.
CountryStatus ShownCountry(std::string_view call);

/// Sets gbDupe: whether gsCall stands in the current log.
void NoteDuplicate();

/// Nothing is worked: no marks, giMult at 0.
void ClearWorked();

}  // namespace vatro
