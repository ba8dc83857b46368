// SPDX-License-Identifier: MIT
//
// What the desktop program has beyond the rules: the one switch for all of it.
//
// The program makes one such object beside its front. The worlds of scenarios have none, so that they see the rules alone.
#pragma once

#include "typing_guard.h"

namespace vatro {

class QtFront;

class Desktop {
public:
    /// The front outlives it.
    explicit Desktop(QtFront& front);
    TypingGuard& Typing() { return typing_; }

private:
    TypingGuard typing_;
};

}  // namespace vatro
