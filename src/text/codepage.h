// SPDX-License-Identifier: MIT
//
// Single-byte text in code page 1252, as used by the logs, the tables and the whole program.
//
// One column of a log is one byte, and texts are compared byte by byte. Text is converted to or from Unicode only where it leaves the
// logic: on screen, in the settings file, in file names and in the input of the tools. Literals with Danish letters are written in UTF-8
// in the sources and converted at compile time by the operator _t; a character outside the code page does not compile.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vatro {

/// The Unicode code points of bytes 0x80 to 0x9F in code page 1252. The five bytes that the code page leaves undefined map to the
/// control characters with the same number, so that every byte survives a round trip.
inline constexpr std::array<char16_t, 32> kCodePageUpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The byte for a Unicode code point, or -1 if the code page does not have the character.
constexpr int CodePageByte(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) return static_cast<int>(codePoint);
    for (std::size_t i = 0; i < kCodePageUpperControls.size(); ++i)
        if (kCodePageUpperControls[i] == codePoint) return static_cast<int>(0x80 + i);
    return -1;
}

/// The Unicode code point for a byte of the code page.
constexpr char32_t CodePoint(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code >= 0x80 && code < 0xA0 ? kCodePageUpperControls[code - 0x80] : code;
}

/// Converts UTF-8 to the code page. Each character outside the code page, and each invalid byte, becomes "?".
std::string FromUtf8(std::string_view utf8);

/// Converts text of the code page to UTF-8.
std::string ToUtf8(std::string_view text);

/// Upper case of one character. Danish and other accented letters of the code page are converted; "ß" and "ÿ" are not.
constexpr char Upper(char c) {
    const auto code = static_cast<unsigned char>(c);
    const bool lower = (code >= 'a' && code <= 'z') || (code >= 0xE0 && code <= 0xFE && code != 0xF7);
    if (lower) return static_cast<char>(code - 0x20);
    if (code == 0x9A || code == 0x9C || code == 0x9E) return static_cast<char>(code - 0x10);
    return c;
}

/// Upper case of a text, character by character.
std::string UpperText(std::string_view text);

/// Whether `part` occurs anywhere in `text`, ignoring case. Every text contains the empty text.
bool ContainsNoCase(std::string_view text, std::string_view part);

/// Whether two texts are equal, ignoring case.
bool EqualNoCase(std::string_view a, std::string_view b);

namespace detail {

/// A UTF-8 literal converted to the code page, for use as a template argument; zero-terminated.
template <std::size_t N>
struct CodePageLiteral {
    char chars[N]{};
    std::size_t length = 0;
    // NOLINTNEXTLINE(google-explicit-constructor): a literal becomes a template argument by this conversion.
    consteval CodePageLiteral(const char (&utf8)[N]) {
        for (std::size_t i = 0; i + 1 < N;) {
            const auto lead = static_cast<unsigned char>(utf8[i]);
            std::size_t more = 0;
            char32_t point = lead;
            if (lead >= 0xF0) {
                point = lead & 0x07U;
                more = 3;
            } else if (lead >= 0xE0) {
                point = lead & 0x0FU;
                more = 2;
            } else if (lead >= 0xC0) {
                point = lead & 0x1FU;
                more = 1;
            }
            ++i;
            for (; more > 0; --more, ++i) point = (point << 6U) | (static_cast<unsigned char>(utf8[i]) & 0x3FU);
            const int byte = CodePageByte(point);
            if (byte < 0) throw "a character of the literal is not in code page 1252";
            chars[length++] = static_cast<char>(byte);
        }
    }
};

}  // namespace detail

inline namespace literals {

/// Converts a literal to text of the code page: "Vælg bånd"_t.
template <detail::CodePageLiteral L>
consteval std::string_view operator""_t() {
    return {L.chars, L.length};
}

}  // namespace literals

}  // namespace vatro
