// SPDX-License-Identifier: MIT
//
// The minute clock of the time field.
#pragma once

namespace vatro {

/// Starts the clock so that its first tick falls 100 ms after the next full minute, and ticks its menu entry.
void TimerStart();
/// Stops the clock and unticks its menu entry.
void TimerStop();
/// One tick: a minute until the next, and the time field shows universal time.
void TimerTick();
/// The menu entry: switches the automatic time.
void ToggleAutoTime();

}  // namespace vatro
