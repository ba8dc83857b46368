// SPDX-License-Identifier: MIT
//
// How the program comes up. There is no main loop of its own: the start procedure loads what every later step needs,
// brings up the main form and returns; from then on everything happens in handlers of events.
#pragma once

namespace vatro {

/// What the program holds in memory becomes what it is before the first start; a run begins with nothing of an earlier one.
void ResetAll();

/// Reads the general settings, refuses a second running copy, loads the country table, the prefix table and the list of
/// the society's stations behind the splash window, and loads the main form, which does the rest. To be dispatched once
/// after BeginProgram.
void StartProgram();

/// The box that refuses a second copy.
void ShowAlreadyRunning();

/// Stores what a regular end stores: the operators, the settings, the places of the windows. For an end that runs no handler, at
/// any moment at which the logic waits for the front; asks nothing of the front and never fails. Before the main form is up nothing
/// is stored, as at every early end. While a handler has file 1 open, the operators are left out.
void StoreRunningProgram() noexcept;

}  // namespace vatro
