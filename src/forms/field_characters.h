// SPDX-License-Identifier: MIT
//
// The characters that a field takes from the user, whichever way they come.
//
// Under the rules only keys go through a field's filter. On the desktop a pasted text does too: "1E9" as received number is a
// thousand millions to the log, and shifts its columns.
#pragma once

#include <string_view>

#include "text_controls.h"

namespace vatro {

/// What becomes of a character on its way into the field: itself, another one (a capital letter), or kNoKey. It is what the
/// field's key filter says; and a field with arrows that count its number takes figures only, which it has no filter for. Keys
/// below the blank are given back as they are.
KeyCode CharacterInto(const TextControl& field, KeyCode key);

/// Puts the first line of a text over the selection as if it were typed: each character as CharacterInto says, as far as there is
/// room. Nothing if the field takes none of it.
void PasteInto(TextControl& field, std::string_view text);

}  // namespace vatro
