// SPDX-License-Identifier: MIT
//
// Lines as streams: where a rule reads its lines from and where it writes them to. Whoever calls the rule decides whether that
// is a file, a list in memory or something else.
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// Lines to be read, one after the other.
class LineSource {
public:
    virtual ~LineSource() = default;
    /// Whether no line is left. May fail with a RunTimeError.
    virtual bool AtEnd() = 0;
    /// The next line, without its end. Fails with 62 if none is left, and with any other RunTimeError if it cannot be read.
    virtual std::string Next() = 0;
};

/// Lines to be written.
class LineSink {
public:
    virtual ~LineSink() = default;
    /// Writes the text and ends the line. Fails with a RunTimeError if it cannot be written.
    virtual void Write(std::string_view line) = 0;
};

}  // namespace vatro
