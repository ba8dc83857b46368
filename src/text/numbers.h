// SPDX-License-Identifier: MIT
//
// Numbers in text: reading the numeric value of a text, testing whether a text is a number, and formatting numbers as the logs
// store them.
//
// 16-bit and 32-bit values never overflow silently: every value to be stored goes through ToInt16 or ToInt32, which fail instead.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vatro {

/// Whether the character is one of 0 to 9.
constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The number at the front of a text, or 0 if there is none. Understands a sign, a decimal point and an exponent ("E" or "D"). Blanks,
/// tabs and line ends are skipped, even inside the number. A number too large for a double gives infinity. Never fails.
double NumericValue(std::string_view text);

/// Whether NumericValue would read the text to its end. False for an empty text, and for a number that is too large.
bool IsNumeric(std::string_view text);

/// The value of a text for which IsNumeric is true. Fails with 13 (type mismatch) for any other text.
double ToNumber(std::string_view text);

/// Rounds to the nearest integer; halves are rounded to the even neighbour. Fails with 6 (overflow) outside the range of the type.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

/// Converts to a 32-bit float. Fails with 6 (overflow) outside the range of the type.
float ToFloat32(double value);

/// The integer in plain decimal digits.
std::string PlainNumber(long long value);

/// The integer in decimal digits, with its minus sign in front or, if it is not negative, a blank.
std::string NumberText(long long value);

/// The value rounded to an integer, with leading zeros up to at least `digits` digits, as in "0042". A larger number keeps all its
/// digits. Halves are rounded away from zero. Fails with 6 if the value is not finite.
std::string ZeroPadded(double value, int digits);

/// The same for the number that the text consists of. A text that is not a number is returned unchanged.
std::string ZeroPadded(std::string_view text, int digits);

/// Puts a number into a template: each "@" is a place for one character of NumberText, aligned to the right. Other characters of the
/// template are copied. If the number has more characters than there are places, all of them are kept.
std::string InTemplate(std::string_view placeholders, long long value);

}  // namespace vatro
