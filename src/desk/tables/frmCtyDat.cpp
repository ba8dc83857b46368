// SPDX-License-Identifier: MIT
#include "tables/frmCtyDat.h"

#include <algorithm>

#include "platform.h"

namespace vatro {

namespace {

/// Number of times the bar is painted from one end to the other.
constexpr int kRepaints = 100;

}  // namespace

FrmCtyDat::FrmCtyDat()
    : Form("frmCtyDat", FormKind::Tool, "Importerer cty.dat"),
      progress(*this, "ProgressBar1"),
      statusBar(*this, "sbStatusBar", {"", "", ""}),
      minuteTimer(*this, "Timer1", 0) {
    minuteTimer.OnTimer = [this] { ShowClock(); };
}

void FrmCtyDat::Form_Load() {
    minuteTimer.SetInterval((60 - platform().clock.Now().second) * 1000);
    minuteTimer.SetRunning(true);
    ShowClock();
}

void FrmCtyDat::ShowClock() {
    if (minuteTimer.Interval() != Timer::kMinute) minuteTimer.SetInterval(Timer::kMinute);
    // The panels are meant for date and time, but the program never had values for them: one shows the day from which it counts dates,
    // the other nothing. Keep them: operators know the window as it is.
    statusBar.SetPanel(2, "30.12.1899");
    statusBar.SetPanel(3, "");
}

void FrmCtyDat::ShowStage(std::string_view stage) {
    statusBar.SetPanel(1, stage);
    Refresh();
}

void FrmCtyDat::Begin(int rows) {
    progress.SetMax(rows);
    progress.SetValue(0);
    nextPaint_ = 0;
}

void FrmCtyDat::PaintBar(int row) {
    nextPaint_ = row + std::max(progress.Max() / kRepaints, 1);
    Refresh();
}

}  // namespace vatro
