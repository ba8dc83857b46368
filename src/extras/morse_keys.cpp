// SPDX-License-Identifier: MIT
#include "morse_keys.h"

#include <utility>

namespace vatro {

bool MorseKeys::Own(const PressedKey& key) {
    if (key.kind == KeyKind::AccessLetter) return key.letter == 'S' || key.letter == 'T';
    return key.kind == KeyKind::Enter || key.kind == KeyKind::Esc;
}

bool MorseKeys::StillMeansText(const PressedKey& key, Moment now) {
    const std::optional<Moment> ended = std::exchange(ended_, std::nullopt);
    if (!ended || now - *ended > kAfterwards) return false;
    return key.kind == KeyKind::Enter || key.kind == KeyKind::Esc;
}

}  // namespace vatro
