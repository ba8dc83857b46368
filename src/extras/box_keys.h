// SPDX-License-Identifier: MIT
//
// Which keys answer a message box.
//
// A box may come up in the middle of typing: the operator looks at the paper and writes on. What was meant for a field must not
// answer a question that nobody has read. Letters and figures never do, nor does the blank between them; nor any key that
// comes before a box can have been seen, nor one that has been held down since before.
#pragma once

#include <optional>

#include "pressed_key.h"

namespace vatro {

class BoxKeys {
public:
    enum class Verdict {
        /// The box gets the key.
        Take,
        /// The key does nothing.
        Drop,
        /// The key does nothing, and the box shows that it is waiting for an answer.
        DropAndFlash
    };

    /// Nobody reacts to what appears on a screen in less time.
    static constexpr Moment kUnseen{200};
    /// A blank that follows a character within this time is part of what is being typed.
    static constexpr Moment kTyping{250};

    /// A box has come to the front.
    void CameUp(Moment now);
    /// A key is pressed on the box in front.
    Verdict Press(const PressedKey& key, Moment now);

private:
    std::optional<Moment> cameUp_;
    /// When a character was dropped last, or the blank behind it.
    std::optional<Moment> typed_;
};

}  // namespace vatro
