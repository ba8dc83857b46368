// SPDX-License-Identifier: MIT
#include "entry/qso_fields.h"

#include <utility>

#include "entry/keys.h"

namespace vatro {

namespace {

bool ErCallEllerNr(int index) {
    return index == kCallFelt || index == kNrModtagetFelt;
}

void Esc(QsoTekster& felter, int index) {
    if (ErCallEllerNr(index)) {
        felter[kCallFelt].SetText({});
        felter[kNrModtagetFelt].SetText({});
        felter[kCallFelt].SetFocus();
    } else if (index != kNrSendtFelt) {
        felter[index].SetText({});
    }
}

}  // namespace

void SætFeltlængder(QsoTekster& felter) {
    constexpr int kLængder[kAntalFelter]{5, 15, 3, 4, 3, 4};
    for (int i = 0; i < kAntalFelter; ++i) felter[i].SetMaxLength(kLængder[i]);
}

void FeltTast(QsoTekster& felter, int Index, KeyCode& KeyAscii, const std::function<void()>& enter) {
    const KeyCode tast = std::exchange(KeyAscii, kNoKey);
    if (tast == kEnter) return enter();
    if (tast == kEsc) return Esc(felter, Index);
    if (tast == kSpace) {
        if (ErCallEllerNr(Index)) felter[Index == kCallFelt ? kNrModtagetFelt : kCallFelt].SetFocus();
        return;
    }
    KeyAscii = tast;
}

void FeltFilter(int Index, KeyCode& KeyAscii) {
    if (Index == kCallFelt) KeyAscii = StorTast(KeyAscii);
    // No field can hold a blank from the keyboard.
    if (KeyAscii == kSpace) KeyAscii = kNoKey;
    if (Index == kUtcFelt) FiltrerTast(KeyAscii, kTidTegn);
    if (Index == kCallFelt) FiltrerTast(KeyAscii, kCallTegn);
    if (Index == kNrModtagetFelt) FiltrerTast(KeyAscii, kCifferTegn);
}

}  // namespace vatro
