// SPDX-License-Identifier: MIT
#include "datetime.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>

#include "codepage.h"
#include "numbers.h"

namespace vatro {

namespace {

constexpr long long kMillisecondsPerHour = 3'600'000;
constexpr long long kMillisecondsPerDay = 24 * kMillisecondsPerHour;

std::chrono::sys_days Day(const DateTime& moment) {
    return std::chrono::year(moment.year) / std::chrono::month(static_cast<unsigned>(moment.month)) /
           std::chrono::day(static_cast<unsigned>(moment.day));
}

DateTime FromMilliseconds(long long milliseconds) {
    long long days = milliseconds / kMillisecondsPerDay;
    long long rest = milliseconds % kMillisecondsPerDay;
    if (rest < 0) {
        rest += kMillisecondsPerDay;
        --days;
    }
    const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(days))};
    DateTime moment;
    moment.year = static_cast<int>(date.year());
    moment.month = static_cast<int>(static_cast<unsigned>(date.month()));
    moment.day = static_cast<int>(static_cast<unsigned>(date.day()));
    moment.hour = static_cast<int>(rest / kMillisecondsPerHour);
    moment.minute = static_cast<int>(rest / 60'000 % 60);
    moment.second = static_cast<int>(rest / 1'000 % 60);
    moment.millisecond = static_cast<int>(rest % 1'000);
    return moment;
}

void AppendTwoDigits(std::string& text, int number) {
    text += static_cast<char>('0' + number / 10 % 10);
    text += static_cast<char>('0' + number % 10);
}

/// Reads numbers and words from the front of a text, skipping blanks before each of them.
class Scanner {
public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    /// Reads a number. Returns nothing if it has no digits or more than `most` digits.
    std::optional<int> Number(std::size_t most) {
        const std::string_view digits = Run(IsDigit);
        if (digits.empty() || digits.size() > most) return std::nullopt;
        int number = 0;
        for (const char c : digits) number = number * 10 + (c - '0');
        digits_ = digits.size();
        return number;
    }
    /// How many digits the last number had.
    std::size_t Digits() const { return digits_; }

    std::string_view Word() {
        return Run([](char c) { return Upper(c) >= 'A' && Upper(c) <= 'Z'; });
    }
    bool Take(std::string_view oneOf) {
        SkipBlanks();
        if (rest_.empty() || std::ranges::find(oneOf, rest_.front()) == oneOf.end()) return false;
        rest_.remove_prefix(1);
        return true;
    }
    bool AtEnd() {
        SkipBlanks();
        return rest_.empty();
    }

private:
    void SkipBlanks() {
        while (!rest_.empty() && rest_.front() == ' ') rest_.remove_prefix(1);
    }
    template <class Belongs>
    std::string_view Run(Belongs belongs) {
        SkipBlanks();
        std::size_t length = 0;
        while (length < rest_.size() && belongs(rest_[length])) ++length;
        const std::string_view run = rest_.substr(0, length);
        rest_.remove_prefix(length);
        return run;
    }

    std::string_view rest_;
    std::size_t digits_ = 0;
};

struct MonthWords {
    std::string_view english;
    std::string_view danish;
};

constexpr std::array<MonthWords, 12> kMonths{{
    {"JANUARY", "JANUAR"},
    {"FEBRUARY", "FEBRUAR"},
    {"MARCH", "MARTS"},
    {"APRIL", "APRIL"},
    {"MAY", "MAJ"},
    {"JUNE", "JUNI"},
    {"JULY", "JULI"},
    {"AUGUST", "AUGUST"},
    {"SEPTEMBER", "SEPTEMBER"},
    {"OCTOBER", "OKTOBER"},
    {"NOVEMBER", "NOVEMBER"},
    {"DECEMBER", "DECEMBER"},
}};

/// The month from 1 to 12, or 0 if the word is not a month.
int MonthOfWord(std::string_view word) {
    const auto is = [word](std::string_view name) { return EqualNoCase(word, name) || EqualNoCase(word, name.substr(0, 3)); };
    for (std::size_t i = 0; i < kMonths.size(); ++i)
        if (is(kMonths[i].english) || is(kMonths[i].danish)) return static_cast<int>(i) + 1;
    return 0;
}

}  // namespace

DateTime AddHours(const DateTime& moment, long hours) {
    return AddMilliseconds(moment, hours * kMillisecondsPerHour);
}

DateTime AddMilliseconds(const DateTime& moment, long long milliseconds) {
    return FromMilliseconds(Milliseconds(moment) + milliseconds);
}

long long Milliseconds(const DateTime& moment) {
    return Day(moment).time_since_epoch().count() * kMillisecondsPerDay + moment.hour * kMillisecondsPerHour + moment.minute * 60'000LL +
           moment.second * 1'000LL + moment.millisecond;
}

int Weekday(const DateTime& moment) {
    return static_cast<int>(std::chrono::weekday(Day(moment)).iso_encoding()) - 1;
}

std::string FormatTime(int hour, int minute) {
    std::string text;
    AppendTwoDigits(text, hour);
    text += ':';
    AppendTwoDigits(text, minute);
    return text;
}

std::string FormatTime(const DateTime& moment) {
    return FormatTime(moment.hour, moment.minute);
}

std::string FormatDate(const DateTime& moment) {
    return FormatDate(moment, "dd-mm-yy");
}

std::string FormatDate(const DateTime& moment, std::string_view pattern) {
    std::string text;
    const auto take = [&pattern](std::string_view part) {
        if (!pattern.starts_with(part)) return false;
        pattern.remove_prefix(part.size());
        return true;
    };
    while (!pattern.empty()) {
        if (take("dd")) {
            AppendTwoDigits(text, moment.day);
        } else if (take("mm")) {
            AppendTwoDigits(text, moment.month);
        } else if (take("yyyy")) {
            AppendTwoDigits(text, moment.year / 100);
            AppendTwoDigits(text, moment.year);
        } else if (take("yy")) {
            AppendTwoDigits(text, moment.year);
        } else {
            text += pattern.front();
            pattern.remove_prefix(1);
        }
    }
    return text;
}

std::optional<TimeOfDay> ParseTime(std::string_view text) {
    Scanner scan(text);
    const auto hour = scan.Number(2);
    if (!hour || *hour > 23 || !scan.Take(":")) return std::nullopt;
    const auto minute = scan.Number(2);
    if (!minute || *minute > 59) return std::nullopt;
    int second = 0;
    if (scan.Take(":")) {
        const auto number = scan.Number(2);
        if (!number || *number > 59) return std::nullopt;
        second = *number;
    }
    if (!scan.AtEnd()) return std::nullopt;
    return TimeOfDay{*hour, *minute, second};
}

std::optional<DateTime> ParseDate(std::string_view text) {
    constexpr std::string_view kSeparators = "-./";
    Scanner scan(text);
    const auto day = scan.Number(2);
    if (!day || !scan.Take(kSeparators)) return std::nullopt;
    const std::string_view word = scan.Word();
    const int month = word.empty() ? scan.Number(2).value_or(0) : MonthOfWord(word);
    if (!scan.Take(kSeparators)) return std::nullopt;
    auto year = scan.Number(4);
    if (!year || !scan.AtEnd()) return std::nullopt;
    if (scan.Digits() == 2)
        *year += *year >= 50 ? 1900 : 2000;
    else if (scan.Digits() != 4 || *year < 100)
        return std::nullopt;

    const std::chrono::year_month_day date{std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(*day))};
    if (!date.ok()) return std::nullopt;
    DateTime moment;
    moment.year = *year;
    moment.month = month;
    moment.day = *day;
    return moment;
}

}  // namespace vatro
