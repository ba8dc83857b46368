// SPDX-License-Identifier: MIT
//
// Adapters that read and write a numbered file as a stream of lines. The caller opens the number beforehand and closes it
// afterwards; the adapters do neither.
#pragma once

#include <string>
#include <string_view>

#include "lines.h"
#include "platform.h"

namespace vatro {

/// Reads the file that is open under `number`. Fails like Files::LineInput and Files::EndOfFile.
class FileLines : public LineSource {
public:
    FileLines(Files& files, int number) : files_(files), number_(number) {}
    bool AtEnd() override { return files_.EndOfFile(number_); }
    std::string Next() override { return files_.LineInput(number_); }

private:
    Files& files_;
    int number_;
};

/// Writes to the file that is open under `number`. Fails like Files::PrintLine.
class FileSink : public LineSink {
public:
    FileSink(Files& files, int number) : files_(files), number_(number) {}
    void Write(std::string_view line) override { files_.PrintLine(number_, line); }

private:
    Files& files_;
    int number_;
};

}  // namespace vatro
