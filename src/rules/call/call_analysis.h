// SPDX-License-Identifier: MIT
//
// Takes apart a call as the operator typed it. The base call, without portable additions, identifies the station: duplicates, points
// and the society's list are decided by it. The country text decides the country and can be another part of the call: for SV9/OZ1ABC
// the base call is OZ1ABC and the country text is SV9.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// Returns the base call. The call must be in upper case; case is not converted.
std::string StripCall(std::string_view call);

/// Returns the country text, the part of the call that decides the country.
std::string findPfxCall(std::string_view call);

/// Removes a numbered suffix such as "/3" and puts its figure into the call: DL1ABC/3 becomes DL3ABC. A call without such a suffix is
/// returned unchanged. Every digit before a non-digit is replaced, so 2E0ABC/3 becomes 3E3ABC, and an ending such as "3/" counts as a
/// suffix too. Do not tidy either: a contact would get another country, and so other points and another multiplier, than in the log
/// that was sent in.
std::string MoveDigitSuffix(std::string_view call);

}  // namespace vatro
