// SPDX-License-Identifier: MIT
#include "papers/weekend.h"

namespace vatro {

namespace {

constexpr int kSaturday = 5;

DateTime NextDay(const DateTime& day) {
    return AddHours(day, 24);
}

DateTime ThroughText(const DateTime& day) {
    return ParseDate(FormatDate(day)).value_or(day);
}

}  // namespace

ContestWeekend Find1Weekend(int year) {
    DateTime saturday;
    saturday.year = year;
    saturday.month = 8;
    saturday.day = 31;
    do {
        saturday = NextDay(saturday);
    } while (Weekday(saturday) != kSaturday);
    const DateTime sunday = NextDay(saturday);
    return {ThroughText(saturday), ThroughText(sunday), FormatDate(saturday, "yyyy-mm-dd"), FormatDate(sunday, "yyyy-mm-dd")};
}

}  // namespace vatro
