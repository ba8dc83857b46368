// SPDX-License-Identifier: MIT
//
// Handles keys while a Morse text is being sent, and just after it.
//
// The sending window has the focus until the text ends; Esc and Enter stop the text. Meanwhile the operator types the next call. A text
// may end on its own just before the operator presses Esc or Enter to stop it. Without this guard, that key would clear or log what has
// been typed.
#pragma once

#include <optional>

#include "pressed_key.h"

namespace vatro {

/// Remembers when the last text ended.
class MorseKeys {
public:
    /// For this long after the end of a text, Esc and Enter are still taken as meant for it.
    static constexpr Moment kAfterwards{400};

    /// Whether the key belongs to the sending window: Esc, Enter, Alt+S or Alt+T. All other keys go to the entry fields.
    static bool Own(const PressedKey& key);

    /// Call when a text has ended on its own while the sending window had the focus.
    void EndedByItself(Moment now) { ended_ = now; }
    /// Call when a text begins or the operator stops one: later keys are not meant for the previous text.
    void Forget() { ended_.reset(); }
    /// Call for each key pressed while no text is being sent. Returns true if the key was still meant to stop the text that has just
    /// ended, and so must be ignored. Only the first key after a text can be.
    bool StillMeansText(const PressedKey& key, Moment now);

private:
    std::optional<Moment> ended_;
};

}  // namespace vatro
