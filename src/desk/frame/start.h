// SPDX-License-Identifier: MIT
//
// The start of the program. There is no main loop here: the start procedure loads what all later steps need, shows the main form and
// returns; from then on everything happens in event handlers.
#pragma once

namespace vatro {

/// Resets everything that the program holds in memory, so that a run starts without leftovers of an earlier one.
void ResetAll();

/// Reads the general settings, refuses to run as a second copy, loads the country table, the prefix table and the list of the
/// society's stations behind the splash window, and loads the main form, which does the rest. To be dispatched once, after
/// BeginProgram.
void StartProgram();

/// Shows the message that the program is running already.
void ShowAlreadyRunning();

/// Stores everything that a regular end stores: the operators, the settings, the window positions. It serves an end that runs no
/// handler, at any moment at which the logic waits for the front. It asks the front for nothing and never fails. Nothing is stored
/// before the main form is up, as at every early end. While a handler has file 1 open, the operators are not stored.
void StoreRunningProgram() noexcept;

}  // namespace vatro
