// SPDX-License-Identifier: MIT
#include "ini_text.h"

#include <algorithm>
#include <array>
#include <utility>

#include "codepage.h"

namespace vatro {

namespace {

constexpr std::string_view kBlanks = " \t";

/// The letter after the backslash, and the character it stands for.
constexpr std::array<std::pair<char, char>, 9> kEscapes{
    {{'a', '\a'}, {'b', '\b'}, {'f', '\f'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'v', '\v'}, {'"', '"'}, {'\\', '\\'}}};

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

/// Parses the text after the "=".
class ValueReader {
public:
    explicit ValueReader(std::string_view written) : written_(written) {}

    std::string Read() {
        while (at_ < written_.size() && Step()) continue;
        TrimEnd();
        if (result_.starts_with("@@")) result_.erase(0, 1);
        return result_;
    }

private:
    /// Processes one character or escape. Returns false if a comment ends the value before the line ends.
    bool Step() {
        const char c = written_[at_++];
        if (c == '\\') {
            Escaped();
        } else if (c == '"') {
            quoted_ = !quoted_;
            kept_ = result_.size();
        } else if (quoted_) {
            Take(c);
        } else if (c == ';') {
            return false;
        } else if (c == ',') {
            TrimEnd();
            result_ += ", ";
            kept_ = item_ = result_.size();
        } else if (kBlanks.find(c) == std::string_view::npos) {
            Take(c);
        } else if (result_.size() > item_) {
            result_.push_back(c);
        }
        return true;
    }

    void Take(char c) {
        result_.push_back(c);
        kept_ = result_.size();
    }

    void TrimEnd() { result_.resize(kept_); }

    void Escaped() {
        if (at_ == written_.size()) return;
        const char c = written_[at_++];
        for (const auto& [letter, meaning] : kEscapes)
            if (letter == c) return Take(meaning);
        if (c == 'x') return Numbered(16);
        if (c >= '0' && c <= '7') {
            --at_;
            return Numbered(8);
        }
        Take(c);
    }

    void Numbered(int base) {
        char32_t point = 0;
        for (; at_ < written_.size(); ++at_) {
            const int digit = HexDigit(written_[at_]);
            if (digit < 0 || digit >= base) break;
            point = std::min<char32_t>(point * static_cast<char32_t>(base) + static_cast<char32_t>(digit), 0x110000);
        }
        const int byte = CodePageByte(point);
        Take(byte < 0 ? '?' : static_cast<char>(byte));
    }

    std::string_view written_;
    std::size_t at_ = 0;
    bool quoted_ = false;
    std::string result_;
    /// Where the text after the last comma begins in the result.
    std::size_t item_ = 0;
    /// Unquoted blanks after this position are dropped at the end.
    std::size_t kept_ = 0;
};

std::string Written(std::string_view value) {
    std::string text;
    bool quotes = !value.empty() && (value.front() == ' ' || value.back() == ' ');
    bool numbered = false;
    if (value.starts_with('@')) text.push_back('@');
    for (const char c : value) {
        const auto code = static_cast<unsigned char>(c);
        const auto* const escape = std::find_if(kEscapes.begin(), kEscapes.end(), [c](const auto& known) { return known.second == c; });
        const bool wasNumbered = std::exchange(numbered, false);
        if (escape != kEscapes.end()) {
            text += {'\\', escape->first};
        } else if (code < 0x20 || code == 0x7F || (wasNumbered && HexDigit(c) >= 0)) {
            constexpr std::string_view kDigits = "0123456789abcdef";
            text += {'\\', 'x', kDigits[code / 16U], kDigits[code % 16U]};
            numbered = true;
        } else {
            quotes = quotes || c == ';' || c == ',' || c == '=';
            text += ToUtf8({&c, 1});
        }
    }
    return quotes ? '"' + text + '"' : text;
}

}  // namespace

IniText::IniText(std::string_view file) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (file.starts_with(kByteOrderMark)) file.remove_prefix(kByteOrderMark.size());
    std::string section;
    while (!file.empty()) {
        const std::size_t length = std::min(file.find_first_of("\r\n"), file.size());
        const std::string_view line = file.substr(0, length);
        file.remove_prefix(length);
        file.remove_prefix(file.starts_with("\r\n") ? 2 : std::min<std::size_t>(file.size(), 1));

        const std::string_view told = Trimmed(line);
        const std::size_t equals = told.find('=');
        Line read{std::string(line), {}, {}};
        if (told.starts_with('[')) {
            section = FromUtf8(Trimmed(told.substr(1, told.find(']') - 1)));
        } else if (!told.starts_with(';') && equals != std::string_view::npos) {
            read.section = section;
            read.key = FromUtf8(Trimmed(told.substr(0, equals)));
        }
        lines_.push_back(std::move(read));
    }
}

const IniText::Line* IniText::Find(std::string_view section, std::string_view key) const {
    const auto found = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& line) {
        return !line.key.empty() && EqualNoCase(line.key, key) && EqualNoCase(line.section, section);
    });
    return found == lines_.rend() ? nullptr : &*found;
}

std::optional<std::string> IniText::Value(std::string_view section, std::string_view key) const {
    const Line* line = Find(section, key);
    if (line == nullptr) return std::nullopt;
    return ValueReader(FromUtf8(Trimmed(std::string_view(line->text).substr(line->text.find('=') + 1)))).Read();
}

void IniText::SetValue(std::string_view section, std::string_view key, std::string_view value) {
    if (const Line* found = Find(section, key)) {
        Line& line = lines_[static_cast<std::size_t>(found - lines_.data())];
        line.text.erase(line.text.find('=') + 1);
        line.text += Written(value);
        return;
    }
    Line line{std::string(key) + '=' + Written(value), std::string(section), std::string(key)};
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(),
                                   [&](const Line& other) { return !other.key.empty() && EqualNoCase(other.section, section); });
    if (last != lines_.rend()) {
        lines_.insert(last.base(), std::move(line));
        return;
    }
    if (!lines_.empty()) lines_.push_back({});
    lines_.push_back({'[' + std::string(section) + ']', {}, {}});
    lines_.push_back(std::move(line));
}

std::string IniText::Text() const {
    std::string text;
    for (const Line& line : lines_) text += line.text + '\n';
    return text;
}

}  // namespace vatro
