// SPDX-License-Identifier: MIT
//
// A key press as seen by the guards of the operator's typing: what kind of key it is, not where it goes.
#pragma once

#include <chrono>

namespace vatro {

/// A time on a monotonic clock with an arbitrary origin.
using Moment = std::chrono::milliseconds;

/// The kinds of key that the guards tell apart.
enum class KeyKind {
    /// Enter, including the one on the keypad.
    Enter,
    Esc,
    Space,
    /// Any other key that produces a character: letters, digits, punctuation.
    Character,
    /// A letter pressed together with Alt.
    AccessLetter,
    /// Arrows, Tab, function keys, and keys pressed with Ctrl.
    Other
};

/// One key press.
struct PressedKey {
    KeyKind kind = KeyKind::Other;
    /// The letter of an access key, in upper case; 0 for other keys.
    char letter = 0;
    /// Whether this is an auto-repeat of a held key, not a new press.
    bool repeated = false;
};

}  // namespace vatro
