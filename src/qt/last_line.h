// SPDX-License-Identifier: MIT
//
// The command "Ret sidste linje..." of the menu Ekstra: opens the newest line of the log for correction, as Enter on it in the list does.
// Most corrections concern the contact that has just been logged.
#pragma once

namespace vatro {

class QtFront;

/// Adds the command to the menu. It does nothing in an empty log, or while another window must be answered first.
void AddLastLine(QtFront& front);

}  // namespace vatro
