// SPDX-License-Identifier: MIT
#include "papers/weekend.h"

#include "running_program.h"

namespace vatro {
namespace {

DateTime Day(int year, int month, int day) {
    DateTime moment;
    moment.year = year;
    moment.month = month;
    moment.day = day;
    return moment;
}

class Weekend : public RunningProgram {
protected:
    void InYear(int year) {
        clock.now.year = year;
        Find1Weekend();
    }
};

TEST_F(Weekend, IsTheFirstSaturdayOfSeptemberAndTheDayAfter) {
    InYear(2026);
    EXPECT_EQ(gdFirstDay, Day(2026, 9, 5));
    EXPECT_EQ(gdSecondDay, Day(2026, 9, 6));
    EXPECT_EQ(gsFirstDay, "2026-09-05");
    EXPECT_EQ(gsSecondDay, "2026-09-06");
}

TEST_F(Weekend, DoesNotBeginOnASundayTheFirst) {
    InYear(2024);
    EXPECT_EQ(gsFirstDay, "2024-09-07");
    EXPECT_EQ(gsSecondDay, "2024-09-08");
}

TEST_F(Weekend, CanBeginOnTheFirst) {
    InYear(2029);
    EXPECT_EQ(gsFirstDay, "2029-09-01");
    EXPECT_EQ(gsSecondDay, "2029-09-02");
}

TEST_F(Weekend, GoesByTheYearOfTheClockAlone) {
    clock.now = {2024, 1, 1, 0, 0, 0, 0};
    Find1Weekend();
    EXPECT_EQ(gdFirstDay, Day(2024, 9, 7));
}

TEST_F(Weekend, OfALaterHalfCenturyIsReadBackACenturyEarlier) {
    // 3 September 2050 is a Saturday.
    InYear(2050);
    EXPECT_EQ(gdFirstDay, Day(1950, 9, 3));
    EXPECT_EQ(gsFirstDay, "2050-09-03");
}

TEST_F(Weekend, IsWorkedOutAtTheStart) {
    clock.now.year = 2023;
    Start();
    EXPECT_EQ(gsFirstDay, "2023-09-02");
}

}  // namespace
}  // namespace vatro
