// SPDX-License-Identifier: MIT
#include "field_characters.h"

#include <string>

namespace vatro {

KeyCode CharacterInto(const TextControl& field, KeyCode key) {
    if (key < kSpace) return key;
    if (field.KeyFilter) field.KeyFilter(key);
    if (field.Counted() && (key < '0' || key > '9')) return kNoKey;
    return key;
}

bool PasteInto(TextControl& field, std::string_view text) {
    bool all = true;
    for (const char c : text.substr(0, text.find_first_of("\r\n"))) {
        const auto typed = static_cast<unsigned char>(c);
        const KeyCode key = CharacterInto(field, typed);
        // Insert the characters one by one, because a filter may look at what is already in the field.
        const bool accepted = key >= kSpace && field.Room() > 0;
        if (accepted) field.Insert(std::string(1, static_cast<char>(static_cast<unsigned char>(key))));
        if (!accepted && typed > kSpace) all = false;
    }
    return all;
}

}  // namespace vatro
