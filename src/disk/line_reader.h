// SPDX-License-Identifier: MIT
//
// Lines of an open file. A line ends with CR LF, LF or CR; the last one may end with the file. Every other byte,
// zeros included, belongs to its line, and a line may have any length.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "system_file.h"

namespace vatro {

class LineReader {
public:
    /// Begins with another file. It must stay open while it is read.
    void Start(SystemFile& file);
    /// Whether nothing is left.
    bool AtEnd();
    /// The next line without its end. Not to be called at the end.
    std::string Next();

private:
    const char* FindLineEnd();
    /// Reads on when the buffer is used up; false at the end of the file.
    bool Fill();

    SystemFile* file_ = nullptr;
    std::vector<char> buffer_;
    const char* next_ = nullptr;
    const char* end_ = nullptr;
    /// The next LF and CR from `next_` on, `end_` if there is none; kept so that no byte is looked at once per line.
    const char* lineFeed_ = nullptr;
    const char* carriageReturn_ = nullptr;
    /// The last line ended with the CR at the end of the buffer, so that an LF in front of the next bytes is of its end.
    bool skipLineFeed_ = false;
};

}  // namespace vatro
