// SPDX-License-Identifier: MIT
//
// The lines of a numbered file as a stream. The number must be open, and stays open: opening and closing are the caller's.
#pragma once

#include <string>
#include <string_view>

#include "lines.h"
#include "platform.h"

namespace vatro {

/// Reads the file that is open under a number. Fails as Files::LineInput and Files::EndOfFile do.
class FileLines : public LineSource {
public:
    FileLines(Files& files, int number) : files_(files), number_(number) {}
    bool AtEnd() override { return files_.EndOfFile(number_); }
    std::string Next() override { return files_.LineInput(number_); }

private:
    Files& files_;
    int number_;
};

/// Writes to the file that is open under a number. Fails as Files::PrintLine does.
class FileSink : public LineSink {
public:
    FileSink(Files& files, int number) : files_(files), number_(number) {}
    void Write(std::string_view line) override { files_.PrintLine(number_, line); }

private:
    Files& files_;
    int number_;
};

}  // namespace vatro
