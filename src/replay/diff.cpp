// SPDX-License-Identifier: MIT
#include "diff.h"

#include <algorithm>

namespace vatro {

namespace {

constexpr std::size_t kContext = 3;
/// With more pairs of lines than this, the whole middle part is shown as changed.
constexpr std::size_t kMostPairs = 4'000'000;

std::string Range(std::size_t start, std::size_t count) {
    // The position of an empty range is given by the line before it.
    const std::string from = std::to_string(count == 0 ? start : start + 1);
    return count == 1 ? from : from + "," + std::to_string(count);
}

}  // namespace

void UnifiedDiff::Add(char mark, std::string_view prefix, std::string_view line) {
    lines_.push_back({mark, std::string(prefix).append(line)});
}

void UnifiedDiff::Compare(const std::vector<std::string>& before, const std::vector<std::string>& after, std::string_view prefix) {
    std::size_t first = 0;
    while (first < before.size() && first < after.size() && before[first] == after[first]) ++first;
    std::size_t last = 0;
    while (last < before.size() - first && last < after.size() - first &&
           before[before.size() - 1 - last] == after[after.size() - 1 - last])
        ++last;
    for (std::size_t i = 0; i < first; ++i) Add(' ', prefix, before[i]);

    // Longest common subsequence of the lines in between, computed from the end backwards.
    const std::size_t m = before.size() - first - last;
    const std::size_t n = after.size() - first - last;
    const bool whole = m * n > kMostPairs;
    std::vector<std::vector<std::size_t>> common(whole ? 0 : m + 1, std::vector<std::size_t>(n + 1));
    if (!whole)
        for (std::size_t i = m; i-- > 0;)
            for (std::size_t j = n; j-- > 0;)
                common[i][j] =
                    before[first + i] == after[first + j] ? common[i + 1][j + 1] + 1 : std::max(common[i + 1][j], common[i][j + 1]);
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < m || j < n) {
        if (!whole && i < m && j < n && before[first + i] == after[first + j]) {
            Add(' ', prefix, before[first + i]);
            ++i;
            ++j;
        } else if (i < m && (whole || j == n || common[i + 1][j] >= common[i][j + 1])) {
            Add('-', prefix, before[first + i++]);
        } else {
            Add('+', prefix, after[first + j++]);
        }
    }
    for (std::size_t k = before.size() - last; k < before.size(); ++k) Add(' ', prefix, before[k]);
}

std::string UnifiedDiff::Text() const {
    std::string text;
    std::size_t before = 0;
    std::size_t after = 0;
    std::size_t done = 0;
    const auto changed = [](const Line& line) { return line.mark != ' '; };
    while (true) {
        const auto next = std::find_if(lines_.begin() + static_cast<std::ptrdiff_t>(done), lines_.end(), changed);
        if (next == lines_.end()) break;
        const auto at = static_cast<std::size_t>(next - lines_.begin());
        const std::size_t start = std::max(done, at < kContext ? 0 : at - kContext);
        before += start - done;
        after += start - done;
        // Two changes share a hunk if their context lines would touch.
        std::size_t end = at + 1;
        for (std::size_t i = end; i < lines_.size() && i <= end + 2 * kContext; ++i)
            if (changed(lines_[i])) end = i + 1;
        end = std::min(lines_.size(), end + kContext);
        std::size_t beforeCount = 0;
        std::size_t afterCount = 0;
        std::string body;
        for (std::size_t i = start; i < end; ++i) {
            if (lines_[i].mark != '+') ++beforeCount;
            if (lines_[i].mark != '-') ++afterCount;
            body.append(1, lines_[i].mark).append(lines_[i].text).append("\n");
        }
        text += "@@ -" + Range(before, beforeCount) + " +" + Range(after, afterCount) + " @@\n" + body;
        before += beforeCount;
        after += afterCount;
        done = end;
    }
    return text.empty() ? text : "--- " + from_ + "\n+++ " + to_ + "\n" + text;
}

}  // namespace vatro
