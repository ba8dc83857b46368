// SPDX-License-Identifier: MIT
//
// Whether a key is pressed anew or held down.
//
// X11 has no mark for it: a held key is let go and pressed again, both at the same millisecond. Qt looks for the press when it gets
// the release, and often looks too early.
#pragma once

#include <optional>

#include "pressed_key.h"

namespace vatro {

class HeldKeys {
public:
    /// Keys are known by a number of the keyboard's own, and times are those of the keyboard.
    void Released(unsigned key, Moment at) { last_ = Release{key, at}; }
    /// Whether a key that is pressed has not really been let go: its release is the last one, and came at the very same time.
    bool Repeats(unsigned key, Moment at) const { return last_ && last_->key == key && last_->at == at; }

private:
    struct Release {
        unsigned key = 0;
        Moment at{};
    };
    std::optional<Release> last_;
};

}  // namespace vatro
