// SPDX-License-Identifier: MIT
//
// Reads and stores the settings of the keyer, section "CW" of the settings store: how Morse sounds and the eight texts of the
// function keys. They are read once, at the start, and then kept in memory; frmCW changes them and stores them on OK.
#pragma once

namespace vatro {

/// Reads all keys of the section. Fails with 13 on a text that is not a number and with 6 on a number out of range.
void HentCWIndstillinger();
/// Writes all keys of the section.
void GemCWIndstillinger();

}  // namespace vatro
