// SPDX-License-Identifier: MIT
//
// Finds two parts of a call as the operator typed it. The base call is the call without portable additions such as "/P" and without the
// prefix of a visited country. It identifies the station: duplicates and the society's list are decided by it. The country text decides
// the country and can be another part of the call: for SV9/OZ1ABC the base call is OZ1ABC and the country text is SV9.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// Returns the base call. The call must be in upper case; case is not converted.
std::string StripCall(std::string_view call);

/// Returns the country text, the part of the call that decides the country. It is empty if the call consists of additions only, such as
/// "/P". Case is not converted.
std::string findPfxCall(std::string_view call);

/// Removes a numbered suffix such as "/3" and puts its digit into the call: DL1ABC/3 becomes DL3ABC. A call without such a suffix is
/// returned unchanged. Every digit before a non-digit is replaced, so 2E0ABC/3 becomes 3E3ABC, and an ending such as "3/" counts as a
/// suffix too. Do not correct either: a contact would get another country, and so other points and another multiplier, than in the log
/// that was sent in (docs/rules.md).
std::string MoveDigitSuffix(std::string_view call);

}  // namespace vatro
