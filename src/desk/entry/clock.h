// SPDX-License-Identifier: MIT
//
// The minute clock of the time field.
#pragma once

namespace vatro {

/// Starts the clock and ticks its menu entry. The first tick of the clock comes 100 ms after the next full minute.
void TimerStart();
/// Stops the clock and removes the tick of its menu entry.
void TimerStop();
/// Handles a tick of the clock: shows universal time in the time field; the next tick comes a minute later.
void TimerTick();
/// The click of the menu entry: switches the automatic time on or off.
void ToggleAutoTime();

}  // namespace vatro
