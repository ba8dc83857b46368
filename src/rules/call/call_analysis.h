// SPDX-License-Identifier: MIT
//
// A call as the operator typed it, taken apart. The base call, without portable additions, is the station: duplicates,
// points and the society's list go by it. The country text decides the country, which is another thing: of SV9/OZ1ABC the
// base call is OZ1ABC and the country text is SV9.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// Reduces the call in place to the base call. Calls are upper case; nothing is folded.
void StripCall(std::string& call);

/// Writes the text that decides the country to `prefixText`.
void findPfxCall(std::string_view call, std::string& prefixText);

/// If the call ends in a numbered suffix such as "/3", cuts it off and puts its figure into the call: DL1ABC/3 becomes
/// DL3ABC. Every digit before a non-digit is replaced, so 2E0ABC/3 becomes 3E3ABC, and a tail such as "3/" counts as a
/// suffix too: both are meant so.
void MoveDigitSuffix(std::string& call);

}  // namespace vatro
