// SPDX-License-Identifier: MIT
//
// The settings of the keyer, section "CW" of the settings store: how Morse sounds and the eight texts of the function keys.
// They are read once, at the start, and live in memory; frmCW changes them and stores them with OK.
#pragma once

namespace vatro {

/// Reads all keys of the section. Fails with 13 on a text that is no number and with 6 on a number out of range.
void HentCWIndstillinger();
/// Writes them.
void GemCWIndstillinger();

}  // namespace vatro
