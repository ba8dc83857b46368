// SPDX-License-Identifier: MIT
//
// Recognises unintended key presses in the entry fields and in all other forms.
//
// A bouncing key, or a finger that strikes twice, produces a second Enter right after the one that has logged a contact. The fields are
// empty by then, so a box would complain that the call is too short, and the operator would type the next call while the box is open.
#pragma once

#include <optional>

#include "pressed_key.h"

namespace vatro {

/// Remembers when the last contact was logged.
class EntryKeys {
public:
    /// For this long after a contact was logged, an Enter with an empty call counts as part of the Enter that logged it.
    static constexpr Moment kSecondEnter{500};
    /// A Space this soon after another one is its bounce. It would go back to the call field, where the number would be typed next.
    static constexpr Moment kBouncedSpace{150};

    /// Call when a contact has been logged.
    void Logged(Moment now) { logged_ = now; }
    /// Whether to keep this key from the entry form. `callEmpty`: nothing has been typed into the call field for the next contact.
    bool Swallows(const PressedKey& key, bool callEmpty, Moment now);
    /// Whether to keep this key from every form: an auto-repeated Enter or Esc. Each press of these keys may act only once. The first
    /// press may have closed a box or stopped the Morse, and the repeats would then log or clear the contact.
    static bool Held(const PressedKey& key);

private:
    std::optional<Moment> logged_;
    /// When Space was pressed, if it was the last key.
    std::optional<Moment> space_;
};

}  // namespace vatro
