// SPDX-License-Identifier: MIT
//
// A unified diff of two texts, parts of which are known to be equal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// Collects the lines of both texts in order.
class UnifiedDiff {
public:
    /// `from` and `to` are the names of the texts, as the head of the diff shows them.
    UnifiedDiff(std::string from, std::string to) : from_(std::move(from)), to_(std::move(to)) {}

    /// Adds the next line, which is the same in both texts.
    void Same(std::string_view line) { Add(' ', {}, line); }
    /// Compares the next lines of both texts. `prefix` is put before each of them in the diff.
    void Compare(const std::vector<std::string>& before, const std::vector<std::string>& after, std::string_view prefix);
    /// The diff with three lines of context, or an empty text if nothing differs.
    std::string Text() const;

private:
    struct Line {
        /// ' ', '-' or '+'.
        char mark;
        std::string text;
    };
    void Add(char mark, std::string_view prefix, std::string_view line);

    std::string from_;
    std::string to_;
    std::vector<Line> lines_;
};

}  // namespace vatro
