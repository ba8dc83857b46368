// SPDX-License-Identifier: MIT
//
// The choice of the log directory.
#pragma once

namespace vatro {

/// Asks for the log directory: the one in which the user picks or creates the marker file setlog.txt. Keeps the old one on
/// Cancel or any failure; ends the program if there is none. Loads the log that now is the current one.
void SetLogLib();

}  // namespace vatro
