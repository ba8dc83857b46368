// SPDX-License-Identifier: MIT
//
// The operators, who take turns. The box lists the known operators and has a field to type a new one. The list is stored in operator.txt
// in gsFDLib, one operator per line; only the first six characters of a line are used. New names are added at the end; names can be
// deleted only in the file.
#pragma once

#include <string>
#include <string_view>

#include "controls.h"

namespace vatro {

/// Fills the box from operator.txt. On a failure shows a message and keeps the names read so far. If `wanted` is not empty, the box
/// then shows gsOperatør.
void LæsOperatører(ComboBox& box, std::string_view wanted);

/// Writes the list of the box to operator.txt. Failures are not caught.
void GemOperatører(const ComboBox& box);

/// Adds the text of the box to its list unless it is there already, by exact comparison; with `takeOver` the text also becomes
/// gsOperatør. Does nothing if the text is empty. The name says "check", but nothing is checked.
void OperatørTjek(ComboBox& box, bool takeOver);

/// Handles the choice of an item: it becomes gsOperatør.
void OperatørValgt(const ComboBox& box);

/// Handles a key in the box: Enter takes the text over as OperatørTjek does, unless it is longer than six characters.
void OperatørTast(ComboBox& box, KeyCode& KeyAscii);

/// Filters a key in the box: converts it to upper case and lets only the characters of a call pass. A seventh character can be typed;
/// once there are seven, every key is discarded, including Enter and Backspace. Keep this: if Enter passed, the contact would be logged
/// under a name cut to six characters (docs/rules.md).
void OperatorFilter(const ComboBox& box, KeyCode& KeyAscii);

}  // namespace vatro
