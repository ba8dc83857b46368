// SPDX-License-Identifier: MIT
//
// What the program does about an unknown prefix: ukendt.txt, in which contacts of unknown prefix are collected for later
// care. The file is only ever appended to:
//
//    1-3   band
//    4-8   " CW  " or " SSB "
//    9-    the complete contact line
#pragma once

#include <string_view>

namespace vatro {

/// Appends a contact line to ukendt.txt in the log directory. A failure to write ends the program after the message of
/// the log directory that has gone, as it does for the log.
void GemUkendt(std::string_view line);

/// Shows the country of the call being entered, or of the last line of the log, even if the display is switched off.
void ShowCountryNow();

}  // namespace vatro
