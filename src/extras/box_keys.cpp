// SPDX-License-Identifier: MIT
#include "box_keys.h"

namespace vatro {

void BoxKeys::CameUp(Moment now) {
    cameUp_ = now;
    typed_.reset();
    count_ = 0;
}

BoxKeys::Verdict BoxKeys::Press(const PressedKey& key, Moment now) {
    if (key.kind == KeyKind::Other) return Verdict::Take;
    if (key.kind == KeyKind::Character) {
        count_ = typed_ && now - *typed_ < kPause ? count_ + 1 : 1;
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
    // One such Enter only: whoever presses it again has seen that the box is still there.
    if (key.kind == KeyKind::Enter && count_ >= kBlind && typed_ && now - *typed_ < kPause) {
        count_ = 0;
        return Verdict::DropAndFlash;
    }
    return Verdict::Take;
}

}  // namespace vatro
