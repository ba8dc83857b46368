// SPDX-License-Identifier: MIT
#include "tables/frmCtyDat.h"

#include <algorithm>

#include "platform.h"

namespace vatro {

namespace {

constexpr int kMinute = 60000;
/// Pictures of the bar on its way from one end to the other.
constexpr int kRepaints = 100;

}  // namespace

FrmCtyDat::FrmCtyDat()
    : Form("frmCtyDat", FormKind::Tool, "Importerer cty.dat"),
      ProgressBar1(*this, "ProgressBar1"),
      sbStatusBar(*this, "sbStatusBar", {"", "", ""}),
      Timer1(*this, "Timer1", 0) {
    Timer1.OnTimer = [this] { Timer1_Timer(); };
}

void FrmCtyDat::Form_Load() {
    Timer1.SetInterval((60 - platform().clock.Now().second) * 1000);
    Timer1.SetRunning(true);
    Timer1_Timer();
}

void FrmCtyDat::Timer1_Timer() {
    if (Timer1.Interval() != kMinute) Timer1.SetInterval(kMinute);
    // The date and the time that the panels show are never set: the day from which dates are counted, and no time. That is
    // meant so.
    sbStatusBar.SetPanel(2, "30.12.1899");
    sbStatusBar.SetPanel(3, "");
}

void FrmCtyDat::ShowStage(std::string_view stage) {
    sbStatusBar.SetPanel(1, stage);
    Refresh();
}

void FrmCtyDat::Begin(int rows) {
    ProgressBar1.SetMax(rows);
    ProgressBar1.SetValue(0);
    nextPaint_ = 0;
}

void FrmCtyDat::PaintBar(int row) {
    nextPaint_ = row + std::max(ProgressBar1.Max() / kRepaints, 1);
    Refresh();
}

}  // namespace vatro
