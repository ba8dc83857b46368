// SPDX-License-Identifier: MIT
//
// Keys while a Morse text is sent, and right after it.
//
// The window that sends has the keys until the text is over: Esc and Enter stop it. The operator types the next call meanwhile.
// A text may end by itself just before Esc or Enter is pressed to stop it: the key would wipe or log what has been typed.
#pragma once

#include <optional>

#include "pressed_key.h"

namespace vatro {

class MorseKeys {
public:
    /// For this long after its end Esc and Enter still mean the text.
    static constexpr Moment kAfterwards{400};

    /// Whether the key is one of the window that sends: Esc, Enter, Alt+S, Alt+T. Every other one is for the entry fields.
    static bool Own(const PressedKey& key);

    /// A text is over without anybody having stopped it, and the window that sends had the keys.
    void EndedByItself(Moment now) { ended_ = now; }
    /// A text begins, or is stopped by the operator: nothing is left to stop.
    void Forget() { ended_.reset(); }
    /// A key is pressed while no text is sent. True if it still means the text that has just ended, and does nothing: only the
    /// first key behind the text can.
    bool StillMeansText(const PressedKey& key, Moment now);

private:
    std::optional<Moment> ended_;
};

}  // namespace vatro
