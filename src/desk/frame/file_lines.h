// SPDX-License-Identifier: MIT
//
// A sequential file of the platform as lines to read.
#pragma once

#include <string>

#include "lines.h"
#include "platform.h"

namespace vatro {

/// The lines of the file that is open for reading under a number. Opening and closing are the caller's. Fails as the file does.
class FileLines : public LineSource {
public:
    FileLines(Files& files, int number) : files_(files), number_(number) {}
    bool AtEnd() override { return files_.EndOfFile(number_); }
    std::string Next() override { return files_.LineInput(number_); }

private:
    Files& files_;
    int number_;
};

}  // namespace vatro
