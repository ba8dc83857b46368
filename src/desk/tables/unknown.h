// SPDX-License-Identifier: MIT
//
// Contacts with an unknown prefix are collected in ukendt.txt, so that somebody can look into them later. Lines are only ever appended to
// the file:
//
//    1-3   band
//    4-8   " CW  " or " SSB "
//    9-    the complete contact line
#pragma once

#include <string_view>

namespace vatro {

/// Appends a contact line to ukendt.txt in the log directory. If it cannot be written, shows the message that the log directory has
/// gone and ends the program, as for the log itself.
void GemUkendt(std::string_view line);

/// Shows the country of the call being entered, or else of the last line of the log, even if the display of countries is off.
void ShowCountryNow();

}  // namespace vatro
