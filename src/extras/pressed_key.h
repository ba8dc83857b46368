// SPDX-License-Identifier: MIT
//
// A key as those see it that guard the operator's typing: what kind of key it is, not where it goes.
#pragma once

#include <chrono>

namespace vatro {

/// A time of a clock that never goes back; where it begins does not matter.
using Moment = std::chrono::milliseconds;

enum class KeyKind {
    /// Also that of the keypad.
    Enter,
    Esc,
    Space,
    /// Anything else that writes a character: letters, figures, signs.
    Character,
    /// A letter together with Alt.
    AccessLetter,
    /// Arrows, Tab, function keys, keys with Ctrl.
    Other
};

struct PressedKey {
    KeyKind kind = KeyKind::Other;
    /// Of an access letter, in upper case; 0 otherwise.
    char letter = 0;
    /// It comes from a key that is held down, not from a new press.
    bool repeated = false;
};

}  // namespace vatro
