// SPDX-License-Identifier: MIT
//
// Columns of a line, counted from 1, and blank-padded fields of fixed width.
//
// A column beyond the end of a line is empty. This is not a failure, because logs from earlier years have shorter lines.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace vatro {

/// `count` columns of `line`, starting at column `from`, which must be at least 1. The result is shorter or empty if the line ends
/// earlier.
constexpr std::string_view Columns(std::string_view line, std::size_t from, std::size_t count = std::string_view::npos) {
    return from > line.size() ? std::string_view{} : line.substr(from - 1, count);
}

/// The text without leading and trailing blanks. Tabs and line ends are not removed.
constexpr std::string_view Trim(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

/// The last `count` characters of a text, or the whole text if it is shorter.
constexpr std::string_view Right(std::string_view text, std::size_t count) {
    return text.size() <= count ? text : text.substr(text.size() - count);
}

/// The text padded on the right with blanks, or cut, to exactly `width` columns, so that the columns after it never move.
std::string LeftAligned(std::string_view text, std::size_t width);

/// A field of exactly N columns, padded on the right with blanks. An assigned text that is longer is cut.
template <std::size_t N>
class FixedText {
public:
    constexpr FixedText() { chars_.fill(' '); }
    // NOLINTNEXTLINE(google-explicit-constructor): a text can be assigned to a field directly.
    constexpr FixedText(std::string_view text) { Fill(text, ' '); }
    constexpr FixedText& operator=(std::string_view text) {
        Fill(text, ' ');
        return *this;
    }

    /// Assigns the text, padding with `filler` instead of blanks.
    constexpr void Fill(std::string_view text, char filler) {
        const auto end = std::copy_n(text.begin(), std::min(text.size(), N), chars_.begin());
        std::fill(end, chars_.end(), filler);
        std::size_t length = filler == ' ' ? static_cast<std::size_t>(end - chars_.begin()) : N;
        while (length > 0 && chars_[length - 1] == ' ') --length;
        length_ = static_cast<unsigned char>(length);
    }

    /// All N columns.
    constexpr std::string_view Padded() const { return {chars_.data(), N}; }
    /// The columns up to the last one that is not blank.
    constexpr std::string_view RightTrimmed() const { return {chars_.data(), length_}; }
    /// The text without leading and trailing blanks.
    constexpr std::string_view Trimmed() const { return Trim(RightTrimmed()); }

    friend constexpr bool operator==(const FixedText& a, const FixedText& b) { return a.chars_ == b.chars_; }

private:
    static_assert(N > 0 && N < 256);
    std::array<char, N> chars_{};
    unsigned char length_ = 0;
};

}  // namespace vatro
