// SPDX-License-Identifier: MIT
//
// Answers for a program that runs without an operator.
#pragma once

#include "memory_platform.h"

namespace vatro::bench {

/// The operator stays the same when the band changes.
class Unattended : public NobodyThere {
public:
    using NobodyThere::Show;
    Answer Show(const MessageBox& box) override {
        return box.title == "Bånd/modeskift"_t && box.buttons == Buttons::YesNo ? Answer::Yes : NobodyThere::Show(box);
    }
};

}  // namespace vatro::bench
