// SPDX-License-Identifier: MIT
//
// Lines in memory, for tests of procedures that read and write streams of lines.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "errors.h"
#include "lines.h"

namespace vatro {

/// Returns these lines one by one; can be made to fail at one of them.
class VectorSource : public LineSource {
public:
    explicit VectorSource(std::vector<std::string> lines) : lines_(std::move(lines)) {}
    bool AtEnd() override { return next_ >= lines_.size(); }
    std::string Next() override {
        if (failing_ && next_ == failing_->first) throw RunTimeError(failing_->second);
        if (AtEnd()) throw RunTimeError(Failure::InputPastEnd);
        return lines_[next_++];
    }
    /// Makes reading the line of this number fail, counted from 0.
    void FailAt(std::size_t line, Failure failure) { failing_ = {line, failure}; }

private:
    std::vector<std::string> lines_;
    std::size_t next_ = 0;
    std::optional<std::pair<std::size_t, Failure>> failing_;
};

}  // namespace vatro
