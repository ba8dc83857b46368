// SPDX-License-Identifier: MIT
//
// Numbers in texts: the numeric value of a text, the numeric test, and the templates in which the logs hold numbers.
//
// 16-bit and 32-bit values overflow as failures and never silently: what is stored goes through ToInt16 or ToInt32.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vatro {

/// The leading number of a text, blanks skipped wherever they stand; 0 if it has none. Sign, decimal point and an
/// exponent count. Never fails.
double NumericValue(std::string_view text);

/// Whether the whole text is the number that NumericValue takes from its front; the empty text is not a number, nor is one
/// too large.
bool IsNumeric(std::string_view text);

/// The number that a text is as a whole. Fails with 13 (type mismatch) where IsNumeric says no.
double ToNumber(std::string_view text);

/// Rounded to the nearest integer, a half to the even neighbour. Fails with 6 (overflow) outside the type's range.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

/// As a 32-bit float. Fails with 6 (overflow) outside the type's range.
float ToFloat32(double value);

/// The value of an integer, in plain decimal digits.
std::string PlainNumber(long long value);

/// Decimal digits behind one blank, or behind the sign of a negative number.
std::string NumberText(long long value);

/// At least `digits` digits with leading zeros, as "0000"; a larger number keeps all its digits. A half is rounded
/// away from zero. Fails with 6 where the value is not finite.
std::string ZeroPadded(double value, int digits);

/// ZeroPadded of the number that the text is; a text that is no number stands as it is.
std::string ZeroPadded(std::string_view text, int digits);

/// A number in a template of "@" places: its NumberText, right-aligned in the places from the right; every other character
/// of the template stands as it is; what is too long for the places keeps all its characters.
std::string InTemplate(std::string_view placeholders, long long value);

}  // namespace vatro
