// SPDX-License-Identifier: MIT
//
// From characters to elements: which slots of one dot length a character is made of.
//
//   "4"                a dot
//   "1" "2" "3"        first, middle and last third of a dash: "123" is a dash of three dot lengths
//   " "                silence between two elements of one character
//
// So "4 123" is dot, silence, dash. The silence behind a character is not in the table.
#pragma once

#include <string_view>

namespace vatro {

/// The elements of a key: a character in upper case, a blank, or the two letters of a joined sign ("SK"). Compared exactly;
/// empty for whatever is not in the table, so that a lower-case letter has none.
std::string_view MorseElements(std::string_view characters);

}  // namespace vatro
