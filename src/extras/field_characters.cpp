// SPDX-License-Identifier: MIT
#include "field_characters.h"

#include <algorithm>
#include <string>

#include "forms.h"

namespace vatro {

namespace {

/// Whether arrows beside the field count its number.
bool Counted(const TextControl& field) {
    const auto& controls = field.Parent().Controls();
    return std::any_of(controls.begin(), controls.end(), [&field](const Control* control) {
        const auto* arrows = dynamic_cast<const UpDown*>(control);
        return arrows != nullptr && &arrows->Buddy() == &field;
    });
}

}  // namespace

KeyCode CharacterInto(const TextControl& field, KeyCode key) {
    if (key < kSpace) return key;
    if (field.KeyFilter) field.KeyFilter(key);
    if (Counted(field) && (key < '0' || key > '9')) return kNoKey;
    return key;
}

void PasteInto(TextControl& field, std::string_view text) {
    for (const char c : text.substr(0, text.find_first_of("\r\n"))) {
        const KeyCode key = CharacterInto(field, static_cast<unsigned char>(c));
        // One by one: a filter may look at what is in the field already.
        if (key >= kSpace) field.Insert(std::string(1, static_cast<char>(static_cast<unsigned char>(key))));
    }
}

}  // namespace vatro
