// SPDX-License-Identifier: MIT
//
// Keys in the entry fields, and in every other form, that do something although the operator did not mean them to.
//
// A key that bounces, or a finger that strikes twice, gives a second Enter right behind the one that has logged a contact. The
// fields are empty then, a box tells that the call is too short, and the next call is typed under it.
#pragma once

#include <optional>

#include "pressed_key.h"

namespace vatro {

class EntryKeys {
public:
    /// For this long after a contact an Enter with an empty call belongs to the one that has logged it.
    static constexpr Moment kSecondEnter{500};

    /// A contact has been logged.
    void Logged(Moment now) { logged_ = now; }
    /// Whether the entry form does not get this key. `callEmpty`: nothing of the next contact stands in the call field.
    bool Swallows(const PressedKey& key, bool callEmpty, Moment now) const;
    /// Whether no form gets this key: Enter and Esc of a key that is held down. Each of them acts once a press; the press may have
    /// closed a box or stopped the Morse, and what comes behind it would log or wipe.
    static bool Held(const PressedKey& key);

private:
    std::optional<Moment> logged_;
};

}  // namespace vatro
