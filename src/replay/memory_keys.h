// SPDX-License-Identifier: MIT
//
// What the controls do with a key by themselves, as the widgets of a window system do: the editing of a field, the
// rows of a list, the press of a button. To be called inside the event of the key.
#pragma once

#include "controls.h"
#include "driver.h"

namespace vatro {

/// The key as KeyPress gets it, or kNoKey for a key that does not come there (arrows, Delete, F keys, Ctrl and Alt).
KeyCode KeyCodeOf(const KeyStroke& key);

/// `code` is what KeyPress has made of the key, kNoKey if the key is none for KeyPress.
void UseKey(Control& control, const KeyStroke& key, KeyCode code);

}  // namespace vatro
