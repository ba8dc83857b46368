// SPDX-License-Identifier: MIT
//
// Date and time of day, as stored in the logs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vatro {

/// A local or universal time in the Gregorian calendar, to the millisecond.
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

/// The time `hours` later, or earlier if negative. Crosses days, months and years.
DateTime AddHours(const DateTime& moment, long hours);

/// The time `milliseconds` later.
DateTime AddMilliseconds(const DateTime& moment, long long milliseconds);

/// Milliseconds since a fixed day in the past; use it only for differences and ordering.
long long Milliseconds(const DateTime& moment);

/// The weekday, from 0 for Monday to 6 for Sunday.
int Weekday(const DateTime& moment);

/// Formats a time as "Hh:Nn": hours and minutes with two digits each, as in "09:05".
std::string FormatTime(int hour, int minute);
/// The time of day of a moment in the same format.
std::string FormatTime(const DateTime& moment);
/// Formats the date as "dd-mm-yy".
std::string FormatDate(const DateTime& moment);
/// Formats the date by a pattern: "dd", "mm", "yy" and "yyyy" stand for day, month and year; other characters are copied.
std::string FormatDate(const DateTime& moment, std::string_view pattern);

/// Parses "Hh:Nn" or "Hh:Nn:Ss". Each number has one or two digits and may have blanks around it. Returns nothing if the text is
/// not a valid time of day (for example 25:00).
std::optional<TimeOfDay> ParseTime(std::string_view text);

/// Parses a date of day, month and year with "-", "." or "/" between them. The month is a number, or an English or Danish month
/// name, in full or its first three letters. The year has two or four digits; 50 to 99 mean 19xx, and 00 to 49 mean 20xx. Returns
/// nothing if the text is not a valid date.
std::optional<DateTime> ParseDate(std::string_view text);

}  // namespace vatro
