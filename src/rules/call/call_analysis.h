// SPDX-License-Identifier: MIT
//
// A call as the operator typed it, taken apart. The base call, without portable additions, is the station: duplicates,
// points and the society's list go by it. The country text decides the country, which is another thing: of SV9/OZ1ABC the
// base call is OZ1ABC and the country text is SV9.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// The base call. Calls are upper case; nothing is folded.
std::string StripCall(std::string_view call);

/// The text that decides the country.
std::string findPfxCall(std::string_view call);

/// The call without a numbered suffix such as "/3", whose figure is put into the call instead: DL1ABC/3 becomes DL3ABC. A call
/// without one is given back as it is. Every digit before a non-digit is replaced, so 2E0ABC/3 becomes 3E3ABC, and a tail
/// such as "3/" counts as a suffix too: contests are scored by what this gives, so neither may be tidied.
std::string MoveDigitSuffix(std::string_view call);

}  // namespace vatro
