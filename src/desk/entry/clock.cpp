// SPDX-License-Identifier: MIT
#include "entry/clock.h"
#include "frame/state.h"

#include "entry/frmMain.h"
#include "frame/station.h"
#include "platform.h"

namespace vatro {

namespace {

/// Milliseconds after the full minute, so that the tick never shows the minute that has just ended.
constexpr int kAfterMinute = 100;

}  // namespace

void TimerStart() {
    const DateTime now = platform().clock.Now();
    const double seconds = platform().clock.SecondsSinceMidnight() - now.hour * 3600 - now.minute * 60;
    frmMain->minuteTimer.SetInterval(static_cast<int>((60 - seconds) * 1000) + kAfterMinute);
    frmMain->minuteTimer.SetRunning(true);
    frmMain->mnuIndstillingerKlokken.SetTicked(true);
}

void TimerStop() {
    frmMain->minuteTimer.SetRunning(false);
    frmMain->mnuIndstillingerKlokken.SetTicked(false);
}

void TimerTick() {
    if (frmMain->minuteTimer.Interval() != Timer::kMinute) frmMain->minuteTimer.SetInterval(Timer::kMinute);
    frmMain->fields[kUtcField].SetText(UtcTimeText());
}

void CatchUpClock() {
    if (!frmMain.Loaded() || !frmMain->minuteTimer.Running()) return;
    TimerTick();
    TimerStart();
}

void ToggleAutoTime() {
    if (frmMain->mnuIndstillingerKlokken.Ticked()) {
        TimerStop();
        desk().gbAutoTid = 0;
    } else {
        TimerStart();
        desk().gbAutoTid = 1;
    }
}

}  // namespace vatro
