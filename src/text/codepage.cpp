// SPDX-License-Identifier: MIT
#include "codepage.h"

#include <algorithm>

namespace vatro {

namespace {

constexpr char32_t kFaulty = 0xFFFFFFFF;

/// Removes one character from the front of `utf8` and returns it. If the sequence is invalid, removes only its first byte and returns
/// kFaulty.
char32_t NextCodePoint(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    utf8.remove_prefix(1);
    if (lead < 0x80) return lead;
    std::size_t more = 0;
    char32_t point = 0;
    if (lead >= 0xC2 && lead < 0xE0) {
        more = 1;
        point = lead & 0x1FU;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        more = 2;
        point = lead & 0x0FU;
    } else if (lead >= 0xF0 && lead < 0xF5) {
        more = 3;
        point = lead & 0x07U;
    } else {
        return kFaulty;
    }
    if (utf8.size() < more) return kFaulty;
    for (std::size_t i = 0; i < more; ++i) {
        const auto next = static_cast<unsigned char>(utf8[i]);
        if ((next & 0xC0U) != 0x80) return kFaulty;
        point = (point << 6U) | (next & 0x3FU);
    }
    utf8.remove_prefix(more);
    return point;
}

void AppendUtf8(std::string& utf8, char32_t point) {
    if (point < 0x80) {
        utf8 += static_cast<char>(point);
    } else if (point < 0x800) {
        utf8 += static_cast<char>(0xC0U | (point >> 6U));
        utf8 += static_cast<char>(0x80U | (point & 0x3FU));
    } else {
        utf8 += static_cast<char>(0xE0U | (point >> 12U));
        utf8 += static_cast<char>(0x80U | ((point >> 6U) & 0x3FU));
        utf8 += static_cast<char>(0x80U | (point & 0x3FU));
    }
}

}  // namespace

std::string FromUtf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const char32_t point = NextCodePoint(utf8);
        const int byte = point == kFaulty ? -1 : CodePageByte(point);
        text += byte < 0 ? '?' : static_cast<char>(byte);
    }
    return text;
}

std::string ToUtf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size() + text.size() / 8);
    for (const char c : text) AppendUtf8(utf8, CodePoint(c));
    return utf8;
}

std::string UpperText(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), Upper);
    return upper;
}

bool ContainsNoCase(std::string_view text, std::string_view part) {
    if (part.empty()) return true;
    const auto same = [](char a, char b) { return Upper(a) == Upper(b); };
    return std::search(text.begin(), text.end(), part.begin(), part.end(), same) != text.end();
}

bool EqualNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) { return Upper(x) == Upper(y); });
}

}  // namespace vatro
