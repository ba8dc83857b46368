// SPDX-License-Identifier: MIT
//
// Key filters of the fields: characters of a fixed set pass, all others are discarded. On the desktop, pasted text goes through them as
// well as typed keys (field_characters.h).
#pragma once

#include <string_view>

#include "codepage.h"
#include "controls.h"

namespace vatro {

using namespace literals;

// The 4 occurs twice, the first time out of order; only the set of characters matters.
inline constexpr std::string_view kCallCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZÆØÅ12434567890/"_t;
inline constexpr std::string_view kTimeCharacters = "12434567890:."_t;
inline constexpr std::string_view kDigitCharacters = "12434567890"_t;

/// Returns the key in upper case.
inline KeyCode UpperKey(KeyCode key) {
    return key < 0 || key > 255 ? key : static_cast<unsigned char>(Upper(static_cast<char>(static_cast<unsigned char>(key))));
}

/// Discards the key (sets it to kNoKey) unless it is backspace or in the set, ignoring case.
inline void FilterKey(KeyCode& key, std::string_view characters) {
    if (key == kBackspace) return;
    const KeyCode upper = UpperKey(key);
    if (upper < 1 || upper > 255 || characters.find(static_cast<char>(static_cast<unsigned char>(upper))) == std::string_view::npos)
        key = kNoKey;
}

}  // namespace vatro
