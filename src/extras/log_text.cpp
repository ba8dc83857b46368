// SPDX-License-Identifier: MIT
#include "log_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <tuple>
#include <unordered_map>
#include <utility>

#include "errors.h"
#include "log/contact_line.h"
#include "numbers.h"

namespace vatro {

namespace {

constexpr std::size_t kLineWidth = 79;

/// A line with its position, and whether it has a line ending.
struct Piece {
    std::size_t begin;
    std::string_view text;
    bool ended;
};

std::vector<Piece> Split(std::string_view content) {
    std::vector<Piece> pieces;
    pieces.reserve(content.size() / kLineWidth + 1);
    std::size_t begin = 0;
    while (begin < content.size()) {
        const std::size_t lineFeed = std::min(content.find('\n', begin), content.size());
        // A CR ends a line, too; usually it is directly followed by an LF.
        const std::size_t end = begin + std::min(content.substr(begin, lineFeed - begin).find('\r'), lineFeed - begin);
        pieces.push_back({begin, content.substr(begin, end - begin), end < content.size()});
        begin = end + (content.substr(end, 2) == "\r\n" ? 2 : 1);
    }
    return pieces;
}

bool LooksLikeALine(std::string_view line) {
    if (IsNote(line)) return true;
    return line.size() > 5 && IsDigit(line[0]) && IsDigit(line[1]) && IsDigit(line[3]) && IsDigit(line[4]);
}

bool HasControlCharacter(std::string_view line) {
    return std::any_of(line.begin(), line.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20 && c != '\t'; });
}

bool IsDamaged(const Piece& piece) {
    return HasControlCharacter(piece.text) || !LooksLikeALine(piece.text) || (!piece.ended && piece.text.size() < kLineWidth);
}

/// Time and sent number, which together identify a contact.
std::string Key(std::string_view line) {
    std::string key(kTime.Of(line));
    key.append("/").append(kNumberSent.Of(line));
    return key;
}

constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

/// The number of columns in which two lines differ.
std::size_t Difference(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    std::size_t difference = std::max(a.size(), b.size()) - common;
    for (std::size_t i = 0; i < common; ++i)
        if (a[i] != b[i]) ++difference;
    return difference;
}

/// Matches the remaining contacts by time and number. If several have the same, the most similar ones are paired, because a correction
/// changes little of a line.
void MatchCorrected(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now, std::vector<std::size_t>& matched,
                    const std::vector<bool>& taken) {
    struct Group {
        std::vector<std::size_t> old;
        std::vector<std::size_t> now;
    };
    std::unordered_map<std::string, Group> groups;
    for (std::size_t i = 0; i < now.size(); ++i)
        if (!taken[i] && IsContact(now[i])) groups[Key(now[i])].now.push_back(i);
    if (groups.empty()) return;
    for (std::size_t i = 0; i < old.size(); ++i) {
        if (matched[i] != kNone || !IsContact(old[i])) continue;
        if (const auto found = groups.find(Key(old[i])); found != groups.end()) found->second.old.push_back(i);
    }
    for (auto& [key, group] : groups) {
        while (!group.old.empty() && !group.now.empty()) {
            auto bestOld = group.old.begin();
            auto bestNow = group.now.begin();
            for (auto a = group.old.begin(); a != group.old.end(); ++a)
                for (auto b = group.now.begin(); b != group.now.end(); ++b)
                    if (Difference(old[*a], now[*b]) < Difference(old[*bestOld], now[*bestNow]))
                        std::tie(bestOld, bestNow) = std::pair(a, b);
            matched[*bestOld] = *bestNow;
            group.old.erase(bestOld);
            group.now.erase(bestNow);
        }
    }
}

/// For each line of `old`, the index of the same line in `now`, or kNone. Each line of `now` is used at most once.
std::vector<std::size_t> Match(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now) {
    std::vector<std::size_t> matched(old.size(), kNone);
    std::vector<bool> taken(now.size(), false);
    std::unordered_map<std::string_view, std::vector<std::size_t>> whole;
    for (std::size_t i = now.size(); i > 0; --i) whole[now[i - 1]].push_back(i - 1);
    for (std::size_t i = 0; i < old.size(); ++i) {
        const auto found = whole.find(old[i]);
        if (found == whole.end() || found->second.empty()) continue;
        matched[i] = found->second.back();
        taken[matched[i]] = true;
        found->second.pop_back();
    }
    MatchCorrected(old, now, matched, taken);
    return matched;
}

/// Whether the first `old.size()` lines of `now` differ from `old` in at most one line.
bool BeginsAs(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now) {
    if (now.size() < old.size()) return false;
    const auto end = now.begin() + static_cast<std::ptrdiff_t>(old.size());
    const auto [changed, other] = std::mismatch(old.begin(), old.end(), now.begin());
    return changed == old.end() || std::equal(changed + 1, old.end(), other + 1, end);
}

std::string MomentOf(std::string_view line) {
    std::string moment(kDate.TrimmedOf(line));
    if (!moment.empty()) moment += ' ';
    return moment.append(kTime.TrimmedOf(line));
}

}  // namespace

LogText ReadLogText(std::string_view content) {
    LogText text;
    text.damagedFrom = content.size();
    std::vector<Piece> pieces = Split(content);
    while (!pieces.empty() && IsDamaged(pieces.back())) {
        text.damagedFrom = pieces.back().begin;
        pieces.pop_back();
    }
    const bool zeros = content.substr(0, text.damagedFrom).find('\0') != std::string_view::npos;
    text.lines.reserve(pieces.size());
    for (const Piece& piece : pieces) {
        if (!zeros || piece.text.find('\0') == std::string_view::npos) {
            text.lines.push_back(piece.text);
            continue;
        }
        ++text.damagedInside;
        std::string rest(piece.text);
        std::erase(rest, '\0');
        if (rest.size() >= kLineWidth) text.lines.push_back(text.cleaned.emplace_back(std::move(rest)));
    }
    return text;
}

bool IsNoLog(const LogText& text, std::string_view content) {
    return text.lines.empty() && content.size() > 2 * kLineWidth;
}

bool IsContact(std::string_view line) {
    return !line.empty() && !IsNote(line);
}

std::vector<std::string_view> MissingContacts(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now) {
    std::vector<std::string_view> missing;
    if (GoesOn(old, now)) {
        // At most one line has changed.
        const auto [changed, other] = std::mismatch(old.begin(), old.end(), now.begin());
        if (changed != old.end() && IsContact(*changed) && Key(*changed) != Key(*other)) missing.push_back(*changed);
        return missing;
    }
    const std::vector<std::size_t> matched = Match(old, now);
    for (std::size_t i = 0; i < old.size(); ++i)
        if (matched[i] == kNone && IsContact(old[i])) missing.push_back(old[i]);
    return missing;
}

bool IsCorrection(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now) {
    return now.size() == old.size() && BeginsAs(old, now);
}

bool GoesOn(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now) {
    return BeginsAs(old, now);
}

std::vector<std::string_view> Merged(const std::vector<std::string_view>& old, const std::vector<std::string_view>& now) {
    const std::vector<std::size_t> matched = Match(old, now);
    // Element 0 goes before all lines of `now`; element i goes after its line i, counted from 1.
    std::vector<std::vector<std::string_view>> behind(now.size() + 1);
    std::size_t place = 0;
    for (std::size_t i = 0; i < old.size(); ++i) {
        if (matched[i] != kNone)
            place = matched[i] + 1;
        else
            behind[place].push_back(old[i]);
    }
    std::vector<std::string_view> merged = behind.front();
    merged.reserve(old.size() + now.size());
    for (std::size_t i = 0; i < now.size(); ++i) {
        merged.push_back(now[i]);
        merged.insert(merged.end(), behind[i + 1].begin(), behind[i + 1].end());
    }
    return merged;
}

bool IsYoung(const DateTime& when, const DateTime& now) {
    constexpr long long kDays = 3;
    constexpr long long kDay = 86'400'000;
    return Milliseconds(now) - Milliseconds(when) < kDays * kDay;
}

bool IsOld(const std::vector<std::string_view>& lines, const DateTime& now) {
    const auto last = std::find_if(lines.rbegin(), lines.rend(), IsContact);
    if (last == lines.rend()) return false;
    const auto date = ParseDate(kDate.Of(*last));
    return date && !IsYoung(*date, now);
}

std::string LogContent(const std::vector<std::string_view>& lines) {
    std::string content;
    for (const std::string_view line : lines) content.append(line).append("\r\n");
    return content;
}

LogSummary Summarise(const std::vector<std::string_view>& lines) {
    LogSummary summary;
    for (const std::string_view line : lines) {
        if (!IsContact(line)) continue;
        ++summary.contacts;
        summary.last = MomentOf(line);
        if (summary.contacts == 1) summary.first = summary.last;
        const double number = NumericValue(kNumberSent.Of(line));
        if (number > summary.highestNumber && number < 32768) summary.highestNumber = static_cast<int>(number);
    }
    return summary;
}

std::size_t UnreadableLine(const std::vector<std::string_view>& lines) {
    double points = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!IsContact(lines[i])) continue;
        try {
            points = ToInt32(points + NumericValue(kPoint.Of(lines[i])));
            ToInt16(NumericValue(kNumberSent.Of(lines[i])));
        } catch (const RunTimeError&) {
            return i + 1;
        }
    }
    return 0;
}

std::size_t ContentHash(std::string_view content, std::size_t before) {
    // A polynomial in an odd factor, modulo a power of two. Eight bytes at a time do not wait for each other's multiplication.
    constexpr std::uint64_t kFactor = 1099511628211U;
    constexpr auto kPowers = [] {
        std::array<std::uint64_t, 9> powers{1};
        for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * kFactor;
        return powers;
    }();
    std::uint64_t hash = before == 0 ? 14695981039346656037U : before;
    const auto byte = [&content](std::size_t at) -> std::uint64_t { return static_cast<unsigned char>(content[at]) + 1U; };
    std::size_t at = 0;
    for (; at + 8 <= content.size(); at += 8) {
        std::uint64_t eight = 0;
        for (std::size_t i = 0; i < 8; ++i) eight += byte(at + i) * kPowers[7 - i];
        hash = hash * kPowers[8] + eight;
    }
    for (; at < content.size(); ++at) hash = hash * kFactor + byte(at);
    return static_cast<std::size_t>(hash);
}

}  // namespace vatro
