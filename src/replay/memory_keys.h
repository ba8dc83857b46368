// SPDX-License-Identifier: MIT
//
// What controls do with a key on their own, like the widgets of a window system: edit a field, move through the rows of a list, press
// a button. Call inside the event of the key.
#pragma once

#include "controls.h"
#include "driver.h"

namespace vatro {

/// The key as passed to KeyPress, or kNoKey for a key that does not go there (arrows, Delete, function keys, and keys with Ctrl or
/// Alt).
KeyCode KeyCodeOf(const KeyStroke& key);

/// Lets the control act on the key. `code` is the key as returned by KeyPress, or kNoKey if the key does not go to KeyPress.
void UseKey(Control& control, const KeyStroke& key, KeyCode code);

}  // namespace vatro
