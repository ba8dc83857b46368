// SPDX-License-Identifier: MIT
//
// The clock that updates the time field once a minute.
#pragma once

namespace vatro {

/// Starts the clock and shows its menu entry as switched on. The clock ticks for the first time 100 ms after the next full minute.
void TimerStart();
/// Stops the clock and shows its menu entry as switched off.
void TimerStop();
/// Handles a tick of the clock: shows universal time in the time field; the next tick comes a minute later.
void TimerTick();
/// After the computer's clock has jumped: shows the time at once and waits for the next full minute, if the clock runs. A time that is
/// being typed stays, because the clock stands still then.
void CatchUpClock();
/// The click of the menu entry: switches the automatic time on or off.
void ToggleAutoTime();

}  // namespace vatro
