// SPDX-License-Identifier: MIT
//
// The start of the program. There is no main loop here: the start procedure loads what all later steps need, shows the main form and
// returns; from then on everything happens in event handlers.
#pragma once

namespace vatro {

/// Resets everything that the program holds in memory, so that a run starts without leftovers of an earlier one.
void ResetAll();

/// Reads the general settings, refuses to run as a second copy, loads the country table, the prefix table and the list of the society's
/// stations while the splash window is shown, and loads the main form, which does the rest. Dispatch it once, after BeginProgram.
void StartProgram();

/// Shows the message that the program is running already.
void ShowAlreadyRunning();

/// Stores everything that a regular end stores: the operators, the settings, the window positions. Call it when the program is ended from
/// outside without running its handlers, for example with the session of the desktop; it may be called whenever the logic waits for the
/// front. It does not call the front and never fails. It stores nothing before the main form is up, and not the operators while a handler
/// has file 1 open.
void StoreRunningProgram() noexcept;

}  // namespace vatro
