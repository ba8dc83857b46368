// SPDX-License-Identifier: MIT
//
// The Morse table: the elements of each character. An element takes one dot length.
//
//   "4"                a dot
//   "1" "2" "3"        first, middle and last third of a dash: "123" is a dash of three dot lengths
//   " "                silence between two elements of one character
//
// So "4 123" is dot, silence, dash. The silence after a character is not in the table.
#pragma once

#include <string_view>

namespace vatro {

/// Returns the elements for a character in upper case, a blank, or the two letters of a joined sign ("SK"). Compared exactly, so a
/// lower-case letter is not found; empty for anything not in the table.
std::string_view MorseElements(std::string_view characters);

}  // namespace vatro
