// SPDX-License-Identifier: MIT
#include "entry_keys.h"

#include <utility>

namespace vatro {

bool EntryKeys::Swallows(const PressedKey& key, bool callEmpty, Moment now) {
    const std::optional<Moment> space = std::exchange(space_, key.kind == KeyKind::Space ? std::optional(now) : std::nullopt);
    if (Held(key)) return true;
    if (key.kind == KeyKind::Space && space && now - *space < kBouncedSpace) return true;
    return key.kind == KeyKind::Enter && callEmpty && logged_ && now - *logged_ <= kSecondEnter;
}

bool EntryKeys::Held(const PressedKey& key) {
    return key.repeated && (key.kind == KeyKind::Enter || key.kind == KeyKind::Esc);
}

}  // namespace vatro
