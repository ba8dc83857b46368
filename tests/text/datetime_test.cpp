// SPDX-License-Identifier: MIT
#include "datetime.h"

#include <gtest/gtest.h>

namespace vatro {
namespace {

DateTime Moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0, int millisecond = 0) {
    return {year, month, day, hour, minute, second, millisecond};
}

TEST(DateTime, HoursGoAcrossDaysMonthsAndYears) {
    EXPECT_EQ(AddHours(Moment(2026, 9, 5, 15, 30), -2), Moment(2026, 9, 5, 13, 30));
    EXPECT_EQ(AddHours(Moment(2026, 9, 5, 1, 0, 7), -2), Moment(2026, 9, 4, 23, 0, 7));
    EXPECT_EQ(AddHours(Moment(2026, 12, 31, 23, 59), 1), Moment(2027, 1, 1, 0, 59));
    EXPECT_EQ(AddHours(Moment(2024, 3, 1, 0, 0), -1), Moment(2024, 2, 29, 23, 0));
    EXPECT_EQ(AddHours(Moment(2100, 3, 1, 0, 0), -1), Moment(2100, 2, 28, 23, 0));
    EXPECT_EQ(AddHours(Moment(1970, 1, 1, 0, 0), -25), Moment(1969, 12, 30, 23, 0));
}

TEST(DateTime, MillisecondsGoAcrossSeconds) {
    EXPECT_EQ(AddMilliseconds(Moment(2026, 9, 5, 23, 59, 59, 999), 1), Moment(2026, 9, 6));
    EXPECT_EQ(AddMilliseconds(Moment(2026, 9, 6), -1), Moment(2026, 9, 5, 23, 59, 59, 999));
    EXPECT_EQ(AddMilliseconds(DateTime{}, 60'000), Moment(1899, 12, 30, 0, 1));
}

TEST(DateTime, MillisecondsAreADifference) {
    EXPECT_EQ(Milliseconds(Moment(2026, 9, 6)) - Milliseconds(Moment(2026, 9, 5)), 86'400'000);
    EXPECT_EQ(Milliseconds(Moment(2026, 9, 5, 1, 2, 3, 4)) - Milliseconds(Moment(2026, 9, 5)), 3'723'004);
    EXPECT_LT(Milliseconds(DateTime{}), Milliseconds(Moment(1900, 1, 1)));
}

TEST(DateTime, WeekdayCountsFromMonday) {
    EXPECT_EQ(Weekday(Moment(2026, 9, 5)), 5);    // A Saturday.
    EXPECT_EQ(Weekday(Moment(2026, 9, 6)), 6);    // A Sunday.
    EXPECT_EQ(Weekday(Moment(2026, 9, 7)), 0);    // A Monday.
    EXPECT_EQ(Weekday(Moment(1899, 12, 30)), 5);  // A Saturday.
    EXPECT_EQ(Weekday(Moment(2000, 2, 29)), 1);   // A Tuesday.
}

TEST(DateTime, FormatsHaveTwoDigitsEach) {
    EXPECT_EQ(FormatTime(9, 5), "09:05");
    EXPECT_EQ(FormatTime(23, 59), "23:59");
    EXPECT_EQ(FormatTime({2026, 9, 5, 7, 45, 12, 0}), "07:45");
    EXPECT_EQ(FormatDate(Moment(2002, 9, 7)), "07-09-02");
    EXPECT_EQ(FormatDate(Moment(1999, 12, 31)), "31-12-99");
}

TEST(FormatDate, FollowsAPattern) {
    EXPECT_EQ(FormatDate(Moment(2026, 9, 5), "dd.mm.yyyy"), "05.09.2026");
    EXPECT_EQ(FormatDate(Moment(2026, 9, 5), "yyyymmdd"), "20260905");
    EXPECT_EQ(FormatDate(Moment(2009, 12, 31), "yyyy-mm-dd"), "2009-12-31");
    EXPECT_EQ(FormatDate(Moment(2009, 12, 31), "x yy"), "x 09");
    EXPECT_EQ(FormatDate(Moment(2009, 12, 31), ""), "");
}

TEST(ParseTime, TakesOneOrTwoDigitsAndSeconds) {
    EXPECT_EQ(ParseTime("12:07"), (TimeOfDay{12, 7, 0}));
    EXPECT_EQ(ParseTime("0:0"), (TimeOfDay{0, 0, 0}));
    EXPECT_EQ(ParseTime("23:59:58"), (TimeOfDay{23, 59, 58}));
    EXPECT_EQ(ParseTime(" 1 : 2 "), (TimeOfDay{1, 2, 0}));
}

TEST(ParseTime, RefusesWhatIsNoTimeOfDay) {
    for (const char* text : {"", "25:00", "24:00", "12:60", "12:00:60", "12", "12:", ":30", "1207", "123:00", "12:007", "12:3x", "-1:00",
                             "12.07", "12:07:", "12:07:01:02", "1 2:07"})
        EXPECT_FALSE(ParseTime(text)) << text;
}

TEST(ParseDate, TakesEverySeparator) {
    for (const char* text : {"05-09-26", "5-9-26", "05.09.2026", "05/09/26", " 5 - 9 - 2026 "})
        EXPECT_EQ(ParseDate(text), Moment(2026, 9, 5)) << text;
}

TEST(ParseDate, TakesMonthWordsInBothLanguages) {
    EXPECT_EQ(ParseDate("07-Sep-02"), Moment(2002, 9, 7));
    EXPECT_EQ(ParseDate("07-MAY-02"), Moment(2002, 5, 7));
    EXPECT_EQ(ParseDate("07-maj-02"), Moment(2002, 5, 7));
    EXPECT_EQ(ParseDate("07-Oct-02"), Moment(2002, 10, 7));
    EXPECT_EQ(ParseDate("07-okt-02"), Moment(2002, 10, 7));
    EXPECT_EQ(ParseDate("5. september 2026"), std::nullopt);  // A separator is required after the month, too.
    EXPECT_EQ(ParseDate("5. september. 2026"), Moment(2026, 9, 5));
    EXPECT_EQ(ParseDate("1-marts-99"), Moment(1999, 3, 1));
    EXPECT_EQ(ParseDate("1-march-99"), Moment(1999, 3, 1));
}

TEST(ParseDate, TwoDigitYearsTurnAtFifty) {
    EXPECT_EQ(ParseDate("01-01-49"), Moment(2049, 1, 1));
    EXPECT_EQ(ParseDate("01-01-50"), Moment(1950, 1, 1));
    EXPECT_EQ(ParseDate("01-01-99"), Moment(1999, 1, 1));
    EXPECT_EQ(ParseDate("01-01-00"), Moment(2000, 1, 1));
}

TEST(ParseDate, RefusesWhatIsNoDate) {
    for (const char* text : {"",           "31-04-26", "29-02-26",  "00-09-26",   "05-00-26",  "05-13-26",  "32-01-26",   "05-09",
                             "05-09-",     "05-09-6",  "05-09-126", "05-09-0026", "050926",    "05-foo-26", "05-foo9-26", "05-se-26",
                             "05-sept-26", "05 09 26", "05-09-26x", "005-09-26",  "05-009-26", "-05-09-26"})
        EXPECT_FALSE(ParseDate(text)) << text;
    EXPECT_EQ(ParseDate("29-02-24"), Moment(2024, 2, 29));
}

}  // namespace
}  // namespace vatro
