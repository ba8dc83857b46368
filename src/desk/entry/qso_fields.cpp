// SPDX-License-Identifier: MIT
#include "entry/qso_fields.h"

#include <utility>

#include "entry/keys.h"

namespace vatro {

namespace {

bool IsCallOrNumber(int index) {
    return index == kCallField || index == kNumberReceivedField;
}

void ClearFields(ContactFields& fields, int index) {
    if (IsCallOrNumber(index)) {
        fields[kCallField].SetText({});
        fields[kNumberReceivedField].SetText({});
        fields[kCallField].SetFocus();
    } else if (index != kNumberSentField) {
        fields[index].SetText({});
    }
}

}  // namespace

void SetFieldLengths(ContactFields& fields) {
    constexpr int kLengths[kFieldCount]{5, 15, 3, 4, 3, 4};
    for (int i = 0; i < kFieldCount; ++i) fields[i].SetMaxLength(kLengths[i]);
}

void HandleFieldKey(ContactFields& fields, int Index, KeyCode& KeyAscii, const std::function<void()>& enter) {
    const KeyCode pressed = std::exchange(KeyAscii, kNoKey);
    if (pressed == kEnter) return enter();
    if (pressed == kEsc) return ClearFields(fields, Index);
    if (pressed == kSpace) {
        if (IsCallOrNumber(Index)) fields[Index == kCallField ? kNumberReceivedField : kCallField].SetFocus();
        return;
    }
    KeyAscii = pressed;
}

void FilterFieldKey(int Index, KeyCode& KeyAscii) {
    if (Index == kCallField) KeyAscii = UpperKey(KeyAscii);
    // A blank cannot be typed into any field.
    if (KeyAscii == kSpace) KeyAscii = kNoKey;
    if (Index == kUtcField) FilterKey(KeyAscii, kTimeCharacters);
    if (Index == kCallField) FilterKey(KeyAscii, kCallCharacters);
    if (Index == kNumberReceivedField) FilterKey(KeyAscii, kDigitCharacters);
}

}  // namespace vatro
