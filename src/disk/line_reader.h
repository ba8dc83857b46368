// SPDX-License-Identifier: MIT
//
// Reads the lines of an open file. A line ends with CR LF, LF or CR; the last line may also end with the file. All other bytes,
// including zeros, belong to the line. A line may have any length.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "system_file.h"

namespace vatro {

/// Reads with a buffer of its own. Fails with the RunTimeError of the file.
class LineReader {
public:
    /// Starts reading another file, which must stay open while it is read.
    void Start(SystemFile& file);
    /// Whether nothing is left to read.
    bool AtEnd();
    /// The next line without its line ending. Must not be called at the end.
    std::string Next();

private:
    const char* FindLineEnd();
    /// Refills the buffer when it is used up; false at the end of the file.
    bool Fill();

    SystemFile* file_ = nullptr;
    std::vector<char> buffer_;
    const char* next_ = nullptr;
    const char* end_ = nullptr;
    /// The next LF and CR from `next_` on, or `end_` if there is none. Cached so that each byte is searched only once.
    const char* lineFeed_ = nullptr;
    const char* carriageReturn_ = nullptr;
    /// The last line ended with a CR at the end of the buffer; an LF at the start of the next block belongs to the same line
    /// ending.
    bool skipLineFeed_ = false;
};

}  // namespace vatro
