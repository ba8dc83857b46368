// SPDX-License-Identifier: MIT
//
// Streams of lines. The rules read lines from a LineSource and write lines to a LineSink; their caller decides whether that is a file, a
// list in memory, or something else.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// What ends a line in a file that the program writes.
inline constexpr std::string_view kLineEnd = "\r\n";

/// Lines to read, one after the other.
class LineSource {
public:
    virtual ~LineSource() = default;
    /// Whether no line is left. May fail with a RunTimeError.
    virtual bool AtEnd() = 0;
    /// The next line, without its line ending. Fails with 62 if no line is left, and with another RunTimeError if it cannot be
    /// read.
    virtual std::string Next() = 0;
};

/// Lines to write.
class LineSink {
public:
    virtual ~LineSink() = default;
    /// Writes the text as one line. Fails with a RunTimeError if it cannot be written.
    virtual void Write(std::string_view line) = 0;
};

}  // namespace vatro
