// SPDX-License-Identifier: MIT
//
// Date and time of day as the logs hold them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vatro {

/// A moment of local or of universal time, to the millisecond, in the Gregorian calendar.
struct DateTime {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;
    int millisecond = 0;

    friend bool operator==(const DateTime&, const DateTime&) = default;
};

/// A time of day.
struct TimeOfDay {
    int hour = 0;
    int minute = 0;
    int second = 0;
    friend bool operator==(const TimeOfDay&, const TimeOfDay&) = default;
};

/// The moment `hours` later (earlier if negative), across days, months and years.
DateTime AddHours(const DateTime& moment, long hours);

/// The moment `milliseconds` later.
DateTime AddMilliseconds(const DateTime& moment, long long milliseconds);

/// Milliseconds from a fixed day of the past to the moment: for differences and order only.
long long Milliseconds(const DateTime& moment);

/// The weekday, 0 Monday to 6 Sunday.
int Weekday(const DateTime& moment);

/// "Hh:Nn": two digits of the hour, a colon, two digits of the minute.
std::string FormatTime(int hour, int minute);
/// "dd-mm-yy".
std::string FormatDate(const DateTime& moment);
/// The date through a pattern of "dd", "mm", "yy" and "yyyy"; every other character stands as it is.
std::string FormatDate(const DateTime& moment, std::string_view pattern);

/// A time of day from "Hh:Nn" or "Hh:Nn:Ss", one or two digits each, blanks around the numbers allowed. Nothing if the
/// text is no time of day, such as 25:00.
std::optional<TimeOfDay> ParseTime(std::string_view text);

/// A date from day, month and two- or four-digit year with "-", "." or "/" between them. The month is a number or an
/// English or Danish month word, whole or its first three letters. Years 50 to 99 are 19xx, 00 to 49 are 20xx.
/// Nothing if the text is no date.
std::optional<DateTime> ParseDate(std::string_view text);

}  // namespace vatro
