// SPDX-License-Identifier: MIT
//
// The points of a contact. Only the call that was worked decides:
//
//   10  station of the society's list          3  any other European station outside Denmark
//    6  station of a country outside Europe    1  Danish station that is not on the list
//    5  European, not Danish, signing "/P"     0  unknown prefix; a duplicate
#pragma once

#include <cstdint>
#include <string_view>

#include "country/lookup.h"
#include "score/stations.h"

namespace vatro {

/// Whether the first two characters of the call are a Danish prefix, ignoring case. False for an empty call.
bool ErDansk(std::string_view call);

/// The points of a call when neither its country nor the society's list decides them: 1, 3 or 5.
std::int32_t EuropeanPoints(std::string_view call);

/// Returns the points of a call; duplicates are not considered here. An unknown prefix counts 0 only with `gbVisLand`, that is, while
/// the display of countries is on. With the display off the contact keeps 1, 3 or 5 points. Do not correct this: a station that has
/// switched the display off because its country file lacks a new prefix would lose those points (docs/rules.md). A call that is
/// empty, or only a suffix ("/3", "/QRP"), counts 3 and is not looked up. Fails as FindCountry does.
std::int32_t BeregnPoint(std::string_view call, const CountryTables& tables, const Stations& stations, bool gbVisLand);

}  // namespace vatro
