// SPDX-License-Identifier: MIT
#include "entry/clock.h"
#include "frame/state.h"

#include "running_program.h"

namespace vatro {
namespace {

class EntryClock : public RunningProgram {};

TEST_F(EntryClock, TicksATenthOfASecondAfterTheNextFullMinute) {
    Start();
    clock.now.second = 45;
    clock.now.millisecond = 500;
    TimerStart();
    EXPECT_EQ(frmMain->minuteTimer.Interval(), 14600);
    EXPECT_TRUE(frmMain->minuteTimer.Running());
    EXPECT_TRUE(frmMain->mnuIndstillingerKlokken.Ticked());
}

TEST_F(EntryClock, TicksEveryMinuteFromTheFirstTickOn) {
    Start();
    clock.now.minute = 1;
    clock.now.millisecond = 100;
    TimerTick();
    EXPECT_EQ(frmMain->minuteTimer.Interval(), 60000);
    EXPECT_EQ(frmMain->fields[kUtcField].Text(), "13:01");
}

TEST_F(EntryClock, StopsWithoutForgettingThatItIsAutomatic) {
    Start();
    TimerStop();
    EXPECT_FALSE(frmMain->minuteTimer.Running());
    EXPECT_FALSE(frmMain->mnuIndstillingerKlokken.Ticked());
    EXPECT_EQ(desk().gbAutoTid, 1);
}

TEST_F(EntryClock, IsSwitchedByItsMenuEntry) {
    Start();
    ToggleAutoTime();
    EXPECT_EQ(desk().gbAutoTid, 0);
    EXPECT_FALSE(frmMain->minuteTimer.Running());
    ToggleAutoTime();
    EXPECT_EQ(desk().gbAutoTid, 1);
    EXPECT_TRUE(frmMain->minuteTimer.Running());
}

}  // namespace
}  // namespace vatro
