// SPDX-License-Identifier: MIT
#include "papers/weekend.h"

#include <gtest/gtest.h>

namespace vatro {
namespace {

DateTime Day(int year, int month, int day) {
    DateTime moment;
    moment.year = year;
    moment.month = month;
    moment.day = day;
    return moment;
}

TEST(Weekend, IsTheFirstSaturdayOfSeptemberAndTheDayAfter) {
    const ContestWeekend weekend = Find1Weekend(2026);
    EXPECT_EQ(weekend.gdFirstDay, Day(2026, 9, 5));
    EXPECT_EQ(weekend.gdSecondDay, Day(2026, 9, 6));
    EXPECT_EQ(weekend.gsFirstDay, "2026-09-05");
    EXPECT_EQ(weekend.gsSecondDay, "2026-09-06");
}

TEST(Weekend, DoesNotBeginOnASundayTheFirst) {
    EXPECT_EQ(Find1Weekend(2024).gsFirstDay, "2024-09-07");
    EXPECT_EQ(Find1Weekend(2024).gsSecondDay, "2024-09-08");
}

TEST(Weekend, CanBeginOnTheFirst) {
    EXPECT_EQ(Find1Weekend(2029).gsFirstDay, "2029-09-01");
    EXPECT_EQ(Find1Weekend(2029).gsSecondDay, "2029-09-02");
}

TEST(Weekend, OfALaterHalfCenturyIsReadBackACenturyEarlier) {
    // 3 September 2050 is a Saturday.
    EXPECT_EQ(Find1Weekend(2050).gdFirstDay, Day(1950, 9, 3));
    EXPECT_EQ(Find1Weekend(2050).gsFirstDay, "2050-09-03");
}

}  // namespace
}  // namespace vatro
