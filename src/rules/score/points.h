// SPDX-License-Identifier: MIT
//
// What a contact is worth. Only the call worked counts:
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

/// Whether the first two characters of the call are those of a Danish prefix, without regard to case. False for an empty call.
bool ErDansk(std::string_view call);

/// The points of a call that neither its country nor the society's list decides: 1, 3 or 5.
std::int32_t EuropeanPoints(std::string_view call);

/// The points of a call. An unknown prefix is worth nothing only with `gbVisLand`, that is, while the operator is shown the countries:
/// a station that has switched the display off keeps those points in its log. A call that is empty, or nothing
/// but a suffix ("/3", "/QRP"), counts 3 without being looked up.
std::int32_t BeregnPoint(std::string_view call, const CountryTables& tables, const Stations& stations, bool gbVisLand);

}  // namespace vatro
