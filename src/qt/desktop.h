// SPDX-License-Identifier: MIT
//
// Everything that the desktop program has in addition to the rules, switched on by one object.
//
// The program creates this object beside its front. Scenario players do not, so scenarios see only the rules.
#pragma once

#include "typing_guard.h"

namespace vatro {

class QtFront;

class Desktop {
public:
    /// `front` must outlive this object.
    explicit Desktop(QtFront& front);
    TypingGuard& Typing() { return typing_; }

private:
    TypingGuard typing_;
};

}  // namespace vatro
