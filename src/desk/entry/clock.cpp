// SPDX-License-Identifier: MIT
#include "entry/clock.h"

#include "entry/frmMain.h"
#include "frame/station.h"
#include "platform.h"

namespace vatro {

std::int16_t gbAutoTid = 0;

namespace {

constexpr int kMinut = 60000;
/// After the full minute, so that the tick never shows the minute that has just gone.
constexpr int kEfterMinutskift = 100;

}  // namespace

void TimerStart() {
    const DateTime nu = platform().clock.Now();
    const double sekunder = platform().clock.SecondsSinceMidnight() - nu.hour * 3600 - nu.minute * 60;
    frmMain->Timer1.SetInterval(static_cast<int>((60 - sekunder) * 1000) + kEfterMinutskift);
    frmMain->Timer1.SetRunning(true);
    frmMain->mnuIndstillingerKlokken.SetTicked(true);
}

void TimerStop() {
    frmMain->Timer1.SetRunning(false);
    frmMain->mnuIndstillingerKlokken.SetTicked(false);
}

void TimerTick() {
    if (frmMain->Timer1.Interval() != kMinut) frmMain->Timer1.SetInterval(kMinut);
    frmMain->Text1[0].SetText(NuUTCTid());
}

void SkiftAutoTid() {
    if (frmMain->mnuIndstillingerKlokken.Ticked()) {
        TimerStop();
        gbAutoTid = 0;
    } else {
        TimerStart();
        gbAutoTid = 1;
    }
}

}  // namespace vatro
