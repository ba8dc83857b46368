// SPDX-License-Identifier: MIT
//
// Tells a new key press from auto-repeat.
//
// X11 does not mark auto-repeat: a held key is reported as released and pressed again in the same millisecond. Qt checks for the
// following press when it receives the release, but often too early.
#pragma once

#include <optional>

#include "pressed_key.h"

namespace vatro {

/// Remembers the last release.
class HeldKeys {
public:
    /// Keys are identified by their keyboard scan code; times are those reported with the key events.
    void Released(unsigned key, Moment at) { last_ = Release{key, at}; }
    /// Whether a pressed key is an auto-repeat: the last release was of the same key, at exactly the same time.
    bool Repeats(unsigned key, Moment at) const { return last_ && last_->key == key && last_->at == at; }

private:
    struct Release {
        unsigned key = 0;
        Moment at{};
    };
    std::optional<Release> last_;
};

}  // namespace vatro
