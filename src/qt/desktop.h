// SPDX-License-Identifier: MIT
//
// Everything that the desktop program has in addition to the rules, switched on by one object.
//
// The program creates this object beside its front. Scenario players do not, so scenarios see only the rules.
#pragma once

#include "help_key.h"
#include "scroll_tips.h"
#include "typing_guard.h"

namespace vatro {

class QtFront;
class QtHelp;

class Desktop {
public:
    /// Both arguments must outlive this object.
    Desktop(QtFront& front, QtHelp& help);
    TypingGuard& Typing() { return typing_; }

private:
    TypingGuard typing_;
    HelpKey helpKey_;
    ScrollTips scrollTips_;
};

}  // namespace vatro
