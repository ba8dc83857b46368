// SPDX-License-Identifier: MIT
//
// A log in memory: the lines of one band and log mode, contacts and notes, in the order of the file, together with the totals. The
// file is the record; this is the only copy of it in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "log/call_index.h"

namespace vatro {

/// Hears of every change of the lines, after it has been made.
class LogObserver {
public:
    virtual ~LogObserver() = default;
    virtual void Cleared() = 0;
    /// A line was added at the end.
    virtual void Appended() = 0;
    /// The line of this row, counted from 0, is another one.
    virtual void Replaced(std::size_t row) = 0;
};

class Log {
public:
    Log() = default;
    Log(const Log&) = delete;
    Log& operator=(const Log&) = delete;

    const std::vector<std::string>& Lines() const { return *lines_; }
    /// The same lines for a view that shows them without a copy of its own. They outlive the log as long as the view holds them.
    std::shared_ptr<const std::vector<std::string>> SharedLines() const { return lines_; }

    /// The calls of the lines, for the searches of duplicates.h. The first search after a change takes the new lines over, so these two
    /// are not for several threads at once.
    const CallColumns& Calls() const;
    const BaseCalls& StrippedCalls() const;

    /// Removes all lines. This function and those below leave the totals alone; the caller updates them.
    void Clear();
    void Append(std::string line);
    /// Replaces a line. Rows count from 0. Fails with 5 if there is no such row.
    void Replace(std::size_t row, std::string line);
    /// Sets the observer, which must live until another one is set; nullptr removes it.
    void Observe(LogObserver* observer) { observer_ = observer; }

    /// Adds points to glPoint; they may be negative. Fails with 6 if the sum overflows 32 bits, and then adds nothing.
    void AddPoints(double points);

    /// Sum of the points of all contact lines.
    std::int32_t glPoint = 0;
    /// Serial number of the contact being entered. While a log is loaded, and right after it, that of the last contact line read.
    std::int16_t giQSOnr = 0;

private:
    void ForgetCalls(std::size_t row);

    std::shared_ptr<std::vector<std::string>> lines_ = std::make_shared<std::vector<std::string>>();
    mutable CallColumns calls_;
    mutable BaseCalls strippedCalls_;
    LogObserver* observer_ = nullptr;
};

}  // namespace vatro
