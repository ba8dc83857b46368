// SPDX-License-Identifier: MIT
//
// The operators, who take turns: a box that is a list of the known ones and a field to type a new one into. The list is
// operator.txt in gsFDLib, one operator a line, of which the first six characters count. New names join at the end; there is no
// way to delete one but in the file.
#pragma once

#include <string>
#include <string_view>

#include "controls.h"

namespace vatro {

/// Fills the box from operator.txt; a failure gives a message and leaves what was read. If `wanted` is not empty the box
/// shows gsOperatør.
void LæsOperatører(ComboBox& box, std::string_view wanted);

/// Writes the list of the box to operator.txt. Failures are not caught.
void GemOperatører(const ComboBox& box);

/// Adds the text of the box to its list if it is not there, by exact comparison; with `takeOver` it becomes gsOperatør. An empty
/// text: nothing.
void OperatørTjek(ComboBox& box, bool takeOver);

/// An item was chosen: it becomes gsOperatør.
void OperatørValgt(const ComboBox& box);

/// Enter in the box takes the text over as OperatørTjek does, unless it is longer than six characters.
void OperatørTast(ComboBox& box, KeyCode& KeyAscii);

/// What a key becomes in the box: upper case and only the characters of a call. Once the text is longer than six characters every
/// key is swallowed, so a seventh can be typed: meant so.
void OperatorFilter(const ComboBox& box, KeyCode& KeyAscii);

}  // namespace vatro
