// SPDX-License-Identifier: MIT
//
// Sends the text of a function key as Morse, with the values of a contact for its #-codes.
//
// The values come from the entry fields; if the call field is empty, from the last line of the log, so that the texts still address
// the station just worked.
#pragma once

#include <string_view>

namespace vatro {

/// Sends a text, whose #-codes are replaced, in the window frmCWTX. If another text is being sent, this one begins at the character where
/// the other one stood (morse/keyer.h). Without a sound card the first send shows a message, and later sends do nothing.
void SendCW(std::string_view text);

/// Writes the eight texts into the menu, with their #-codes.
void SetCwMenuTekster();

}  // namespace vatro
