// SPDX-License-Identifier: MIT
//
// Which characters a field accepts from the user, by key or by paste.
//
// The forms themselves filter keys only. On the desktop, pasted text goes through the filter too: without it, a received number "1E9"
// that is pasted would be logged as 1000000000 and shift the columns of its line.
#pragma once

#include <string_view>

#include "text_controls.h"

namespace vatro {

/// What a typed character becomes in the field: itself, another character (such as a capital letter), or kNoKey. The field's key
/// filter decides. A field whose number is stepped by arrows has no filter and accepts only digits. Keys below Space are returned
/// unchanged.
KeyCode CharacterInto(const TextControl& field, KeyCode key);

/// Replaces the selection by the first line of the text as if it were typed: each character goes through CharacterInto, as far as
/// there is room. Changes nothing if the field accepts none of it. Returns whether all of it is in the field now, apart from blanks.
bool PasteInto(TextControl& field, std::string_view text);

}  // namespace vatro
