// SPDX-License-Identifier: MIT
//
// A log in memory: the lines of one band and log mode in the order of its file, contacts and notes alike, and what is summed
// up of them. The file is the record; this is its only copy.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vatro {

/// Is told of every change of the lines, after it.
class LogObserver {
public:
    virtual ~LogObserver() = default;
    virtual void Cleared() = 0;
    virtual void Appended(const std::string& line) = 0;
    virtual void Replaced(std::size_t row, const std::string& line) = 0;
};

class Log {
public:
    const std::vector<std::string>& Lines() const { return lines_; }
    /// Another number after every change of the lines.
    unsigned Revision() const { return revision_; }

    /// Removes the lines. The sums are the caller's, here and below.
    void Clear();
    void Append(std::string line);
    /// Rows count from 0. Fails with 5 if there is no such row.
    void Replace(std::size_t row, std::string line);
    /// Nobody is told when it is null. The observer must live until another one is set.
    void Observe(LogObserver* observer) { observer_ = observer; }

    /// Adds points, which may be negative. Fails with 6 beyond 32 bits, with nothing added.
    void AddPoints(double points);

    /// Sum of the points of all contact lines.
    std::int32_t glPoint = 0;
    /// Serial number of the contact being entered; while a log is loaded, that of the last contact line so far.
    std::int16_t giQSOnr = 0;

private:
    std::vector<std::string> lines_;
    unsigned revision_ = 0;
    LogObserver* observer_ = nullptr;
};

}  // namespace vatro
