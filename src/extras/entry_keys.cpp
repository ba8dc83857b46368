// SPDX-License-Identifier: MIT
#include "entry_keys.h"

namespace vatro {

bool EntryKeys::Swallows(const PressedKey& key, bool callEmpty, Moment now) const {
    if (Held(key)) return true;
    return key.kind == KeyKind::Enter && callEmpty && logged_ && now - *logged_ <= kSecondEnter;
}

bool EntryKeys::Held(const PressedKey& key) {
    return key.repeated && (key.kind == KeyKind::Enter || key.kind == KeyKind::Esc);
}

}  // namespace vatro
