// SPDX-License-Identifier: MIT
#include "numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

#include "errors.h"

namespace vatro {

namespace {

/// A number with at most this many digits fits into 32 bits.
constexpr std::size_t kSurelyFits = 9;
/// Any number below this has at most that many digits.
constexpr double kSurelyFitting = 1e9;

constexpr bool IsSign(char c) {
    return c == '+' || c == '-';
}
constexpr bool IsExponentMark(char c) {
    return c == 'e' || c == 'E' || c == 'd' || c == 'D';
}
constexpr bool IsBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Whether an unsigned number outside the range of double is too large, rather than too close to 0.
bool IsTooLarge(std::string_view number) {
    long long places = 0;
    bool pointSeen = false;
    bool figureSeen = false;
    for (std::size_t i = 0; i < number.size() && number[i] != 'e'; ++i) {
        if (number[i] == '.') {
            pointSeen = true;
            continue;
        }
        if (number[i] != '0') figureSeen = true;
        if (figureSeen && !pointSeen) ++places;
        if (!figureSeen && pointSeen) --places;
    }
    const std::size_t mark = number.find('e');
    if (mark == std::string_view::npos) return places > 0;
    std::string_view exponent = number.substr(mark + 1);
    if (exponent.starts_with('+')) exponent.remove_prefix(1);
    long long shift = 0;
    const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), shift);
    if (read.ec == std::errc::result_out_of_range) return !exponent.starts_with('-');
    return shift > -places;
}

struct Reading {
    double value = 0;
    /// Whether the text contains nothing else.
    bool whole = false;
};

/// Reads the number at the front of a text that consists of digits, ".", "e" and signs and begins with a digit or ".".
Reading ReadUnsigned(std::string_view number) {
    Reading reading;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), reading.value);
    reading.whole = read.ec != std::errc::invalid_argument && read.ptr == number.data() + number.size();
    if (read.ec == std::errc::result_out_of_range) reading.value = IsTooLarge(number) ? std::numeric_limits<double>::infinity() : 0.0;
    return reading;
}

/// Reads the number at the front of a text, skipping blanks wherever they stand.
Reading Read(std::string_view text) {
    std::string number;
    bool negative = false;
    bool signTaken = false;
    bool whole = true;
    for (const char c : text) {
        if (IsBlank(c)) continue;
        if (number.empty() && !signTaken && IsSign(c)) {
            negative = c == '-';
            signTaken = true;
        } else if (IsDigit(c) || c == '.') {
            number += c;
        } else if (IsExponentMark(c) && !number.empty()) {
            number += 'e';
        } else if (IsSign(c) && number.ends_with('e')) {
            number += c;
        } else {
            whole = false;
            break;
        }
    }
    Reading reading = ReadUnsigned(number);
    reading.whole = reading.whole && whole;
    if (negative && reading.value != 0) reading.value = -reading.value;
    return reading;
}

/// The value of a text that consists of nothing but a number; nothing for any other text.
std::optional<double> WholeNumber(std::string_view text) {
    const Reading reading = Read(text);
    if (!reading.whole || std::isinf(reading.value)) return std::nullopt;
    return reading.value;
}

template <class Integer>
Integer Rounded(double value) {
    // Nearly every value is a whole number in range, which needs no rounding.
    if (value >= std::numeric_limits<Integer>::min() && value <= std::numeric_limits<Integer>::max())
        if (const auto whole = static_cast<Integer>(value); whole == value) return whole;
    const double below = std::floor(value);
    const double part = value - below;
    const bool up = part > 0.5 || (part == 0.5 && std::fmod(below, 2.0) != 0);
    const double rounded = up ? below + 1 : below;
    // Written as a negation so that NaN fails, too.
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        throw RunTimeError(Failure::Overflow);
    return static_cast<Integer>(rounded);
}

/// Fast path: the value of a short text that has nothing but a sign, digits with at most one point, and blanks. Returns nothing for any
/// other text.
std::optional<double> ShortNumber(std::string_view text) {
    if (text.size() > kSurelyFits) return std::nullopt;
    int digits = 0;
    // Nearly every text is blanks and the digits after them.
    std::size_t at = 0;
    while (at < text.size() && text[at] == ' ') ++at;
    while (at < text.size() && IsDigit(text[at])) digits = digits * 10 + (text[at++] - '0');
    if (at == text.size()) return digits;
    digits = 0;
    // Dividing two integers that a double holds exactly gives the double nearest to the true value.
    double unit = 1;
    char sign = 0;
    bool begun = false;
    bool point = false;
    for (const char c : text) {
        if (IsBlank(c)) continue;
        if (IsDigit(c)) {
            digits = digits * 10 + (c - '0');
            if (point) unit *= 10;
        } else if (c == '.' && !point) {
            point = true;
        } else if (IsSign(c) && !begun) {
            sign = c;
        } else {
            return std::nullopt;
        }
        begun = true;
    }
    const double value = digits / unit;
    return sign == '-' && digits != 0 ? -value : value;
}

}  // namespace

double NumericValue(std::string_view text) {
    // Fast path for columns of a log or country file, which are read thousands of times.
    if (const auto value = ShortNumber(text)) return *value;
    return Read(text).value;
}

bool IsNumeric(std::string_view text) {
    // Fast path for log fields with a few digits, which are tested again and again.
    if (!text.empty() && text.size() <= kSurelyFits && std::all_of(text.begin(), text.end(), IsDigit)) return true;
    return WholeNumber(text).has_value();
}

double ToNumber(std::string_view text) {
    const auto value = WholeNumber(text);
    if (!value) throw RunTimeError(Failure::TypeMismatch);
    return *value;
}

std::int16_t ToInt16(double value) {
    return Rounded<std::int16_t>(value);
}

std::int32_t ToInt32(double value) {
    return Rounded<std::int32_t>(value);
}

float ToFloat32(double value) {
    if (!(std::fabs(value) <= std::numeric_limits<float>::max())) throw RunTimeError(Failure::Overflow);
    return static_cast<float>(value);
}

std::string PlainNumber(long long value) {
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return {digits.data(), end};
}

std::string NumberText(long long value) {
    const std::string digits = PlainNumber(value);
    return value < 0 ? digits : " " + digits;
}

std::string ZeroPadded(double value, int digits) {
    if (!std::isfinite(value)) throw RunTimeError(Failure::Overflow);
    const double rounded = std::round(value);
    const double size = std::fabs(rounded);
    // The largest double has 309 digits.
    std::array<char, 320> figures;
    char* const last = figures.data() + figures.size();
    const auto end = size < kSurelyFitting ? std::to_chars(figures.data(), last, static_cast<std::int32_t>(size)).ptr
                                           : std::to_chars(figures.data(), last, size, std::chars_format::fixed, 0).ptr;
    const auto count = static_cast<std::size_t>(end - figures.data());
    const auto wanted = static_cast<std::size_t>(std::max(digits, 0));
    std::string text;
    if (rounded < 0) text += '-';
    if (count < wanted) text.append(wanted - count, '0');
    text.append(figures.data(), count);
    return text;
}

std::string ZeroPadded(std::string_view text, int digits) {
    const auto value = WholeNumber(text);
    return value ? ZeroPadded(*value, digits) : std::string(text);
}

std::string InTemplate(std::string_view placeholders, long long value) {
    std::string number = NumberText(value);
    const auto places = static_cast<std::size_t>(std::count(placeholders.begin(), placeholders.end(), '@'));
    if (number.size() < places) number.insert(0, places - number.size(), ' ');
    // Characters without a place go before the first place. A template without any place gets the number at its end.
    std::size_t extra = number.size() - places;
    std::size_t next = 0;
    std::string text;
    text.reserve(placeholders.size() + extra);
    for (const char c : placeholders) {
        if (c != '@') {
            text += c;
            continue;
        }
        text.append(number, next, extra + 1);
        next += extra + 1;
        extra = 0;
    }
    text.append(number, next);
    return text;
}

}  // namespace vatro
