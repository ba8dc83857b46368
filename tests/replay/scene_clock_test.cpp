// SPDX-License-Identifier: MIT
#include "scene_clock.h"

#include <gtest/gtest.h>

namespace vatro {

TEST(SceneClock, StandsStillOnTheContestAfternoon) {
    SceneClock clock;
    EXPECT_EQ(clock.Now(), (DateTime{2026, 9, 5, 15, 0, 0, 0}));
    EXPECT_EQ(clock.SecondsSinceMidnight(), 54000.0);
}

TEST(SceneClock, MovesByMilliseconds) {
    SceneClock clock;
    clock.MoveTo(30250);
    EXPECT_EQ(clock.Now(), (DateTime{2026, 9, 5, 15, 0, 30, 250}));
    EXPECT_DOUBLE_EQ(clock.SecondsSinceMidnight(), 54030.25);
}

TEST(SceneClock, SettingTheLocalTimeMovesNoDueMoment) {
    SceneClock clock;
    clock.MoveTo(1000);
    clock.Set({2027, 1, 1, 23, 59, 59, 500});
    EXPECT_EQ(clock.Passed(), 1000);
    clock.MoveTo(1500);
    EXPECT_EQ(clock.Now(), (DateTime{2027, 1, 2, 0, 0, 0, 0}));
}

TEST(SceneClock, NothingIsDueWithoutATimer) {
    const SceneClock clock;
    EXPECT_EQ(clock.NextDue(), std::nullopt);
}

}  // namespace vatro
