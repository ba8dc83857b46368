// SPDX-License-Identifier: MIT
//
// Decides which keys may answer a message box.
//
// A box may come up while the operator is typing and looking at paper. A key meant for a field must not answer a question that nobody
// has read. So letters and digits never answer a box, nor does Space while typing, nor the Enter that ends what was typed; nor does any
// key pressed before the box can have been seen, nor one held down since before the box appeared.
#pragma once

#include <optional>

#include "pressed_key.h"

namespace vatro {

/// The state of typing in front of a message box. Times are passed in, so that tests need not wait.
class BoxKeys {
public:
    /// What becomes of a key.
    enum class Verdict {
        /// The key goes to the box.
        Take,
        /// The key is ignored.
        Drop,
        /// The key is ignored, and the box flashes to show that it is waiting for an answer.
        DropAndFlash
    };

    /// Nobody can react to something new on the screen within this time.
    static constexpr Moment kUnseen{200};
    /// A Space that follows a character within this time is part of the typing.
    static constexpr Moment kTyping{250};
    /// An Enter that follows this many characters without a pause as long as kPause ends a contact that was typed at the box. One or two
    /// characters and Enter are how people answer.
    static constexpr int kBlind = 3;
    static constexpr Moment kPause{400};

    /// Call when a box comes to the front.
    void CameUp(Moment now);
    /// Decides about a key pressed while a box is in front.
    Verdict Press(const PressedKey& key, Moment now);

private:
    std::optional<Moment> cameUp_;
    /// When a character, or the Space after it, was last ignored.
    std::optional<Moment> typed_;
    /// How many characters have been ignored without a pause.
    int count_ = 0;
};

}  // namespace vatro
