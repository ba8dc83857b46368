// SPDX-License-Identifier: MIT
//
// From a function key to Morse: the text of the key, the values of the contact for its #-codes, the send.
//
//   #C  call        #N  serial number        #R  the station's own call        #T  report
//
// The values are those of the contact in the entry fields; with an empty call field those of the last line of the log, so that
// the texts still address the station just worked.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// The text of the last send as it stands in the settings. This and the three values are set by SendCW and live on until the
/// next one.
extern std::string gsCWRaa;
extern std::string gsCWCall;
/// DanCWTekst gives the two the form of the settings.
extern std::string gsCWRST;
extern std::string gsCWNummer;

/// Expands gsCWRaa into gsCWTekst, in upper case and with a blank at its end. The values are put in as they are. Of a "#" that
/// no code follows, and of a code inside its own value, the "#" is dropped and the text behind it goes on.
void DanCWTekst();

/// Sends the text, #-codes and all, in the window frmCWTX. The text of a send that is going on is replaced where it stands.
/// Without a sound card: nothing, after the message of the first send.
void SendCW(std::string_view tekst);

/// The eight texts into the menu, as they are.
void SetCwMenuTekster();

/// No raw text and no values.
void NulstilCWTekster();

}  // namespace vatro
