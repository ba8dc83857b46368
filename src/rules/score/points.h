// SPDX-License-Identifier: MIT
//
// What a contact is worth. Only the call worked counts:
//
//   10  station of the society's list          3  any other European station outside Denmark
//    6  station of a country outside Europe    1  Danish station that is not on the list
//    5  European, not Danish, signing "/P"     0  unknown prefix; a duplicate
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vatro {

/// Points of the contact being built. The lookups of country and station write it too, so it has a meaning only right
/// after BeregnPoint.
extern std::int32_t giQSOPoint;

/// Whether the first two characters of the call are those of a Danish prefix, without regard to case. False for an empty call.
bool ErDansk(std::string_view call);

/// Sets giQSOPoint for a call; changes no mark and no other counter. An unknown prefix is worth nothing only while
/// gbVisLand is on: meant so. A call that is empty, or nothing but a suffix ("/3", "/QRP"), counts 3 without being looked up.
void BeregnPoint(std::string call);

}  // namespace vatro
