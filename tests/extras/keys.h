// SPDX-License-Identifier: MIT
//
// Key presses for tests.
#pragma once

#include "pressed_key.h"

namespace vatro {

inline constexpr PressedKey kEnterKey{.kind = KeyKind::Enter};
inline constexpr PressedKey kEscKey{.kind = KeyKind::Esc};
inline constexpr PressedKey kSpaceKey{.kind = KeyKind::Space};
inline constexpr PressedKey kLetter{.kind = KeyKind::Character};

}  // namespace vatro
