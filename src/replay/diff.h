// SPDX-License-Identifier: MIT
//
// A unified diff of two texts that are known to agree in part.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

class UnifiedDiff {
public:
    UnifiedDiff(std::string from, std::string to) : from_(std::move(from)), to_(std::move(to)) {}

    /// The next line, the same in both.
    void Same(std::string_view line) { Add(' ', {}, line); }
    /// The next lines of each, told with `prefix` in front.
    void Compare(const std::vector<std::string>& before, const std::vector<std::string>& after, std::string_view prefix);
    /// The diff with three lines of context; empty if nothing differs.
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
