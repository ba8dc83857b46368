// SPDX-License-Identifier: MIT
#include "box_keys.h"

namespace vatro {

void BoxKeys::CameUp(Moment now) {
    cameUp_ = now;
    typed_.reset();
}

BoxKeys::Verdict BoxKeys::Press(const PressedKey& key, Moment now) {
    if (key.kind == KeyKind::Other) return Verdict::Take;
    if (key.kind == KeyKind::Character) {
        typed_ = now;
        return Verdict::DropAndFlash;
    }
    // Do not flash for a repeated key: the box would flash until the key is released.
    if (key.repeated) return Verdict::Drop;
    if (cameUp_ && now - *cameUp_ < kUnseen) return Verdict::DropAndFlash;
    if (key.kind == KeyKind::Space && typed_ && now - *typed_ < kTyping) {
        typed_ = now;
        return Verdict::DropAndFlash;
    }
    return Verdict::Take;
}

}  // namespace vatro
