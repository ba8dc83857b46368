// SPDX-License-Identifier: MIT
//
// From a function key to Morse: the text of the key, the values of the contact for its #-codes, the send.
//
// The values are those of the contact in the entry fields; with an empty call field those of the last line of the log, so that
// the texts still address the station just worked.
#pragma once

#include <string_view>

namespace vatro {

/// Sends the text, #-codes and all, in the window frmCWTX. The text of a send that is going on is replaced where it stands.
/// Without a sound card: nothing, after the message of the first send.
void SendCW(std::string_view text);

/// The eight texts into the menu, as they are.
void SetCwMenuTekster();

}  // namespace vatro
