// SPDX-License-Identifier: MIT
//
// The files of the papers that the menu makes: log files are read under number 1, papers are written under number 2, both in the log
// directory. Also collects the current settings and time for them.
#pragma once

#include <optional>
#include <string_view>

#include "file_lines.h"
#include "papers/context.h"
#include "papers/logs.h"
#include "papers/summary.h"

namespace vatro {

/// The file number of the log being read, and of the paper being written.
inline constexpr int kLogFile = 1;
inline constexpr int kPaperFile = 2;

/// Returns the data of the station for a paper made now.
PaperContext CurrentPaperContext();
/// Counts the log files for a summary made now.
Tally CurrentTally();

/// Opens a log for reading. Fails as Files::Open does.
FileLines OpenLog(const LogId& log);
/// Opens a file of the log directory for reading, under the number of the logs. Fails as Files::Open does.
FileLines OpenInLogLibrary(std::string_view name);
/// Opens a paper in the log directory for writing and replaces an earlier one. Fails as Files::Open does.
FileSink OpenPaper(std::string_view name);

void CloseLog();
void ClosePaper();

/// Opens the log files for papers that count all of them.
///
/// On purpose, a log that the reader has not closed stays open, even when this object is destroyed. Its number is then in use, so every
/// later log counts nothing, and the next load of the log at the entry desk finds nothing either. That way the operator notices a disk
/// failure in the middle of a log at once. If the file were closed, the station would send in a paper with half a log without noticing.
class LogFiles : public LogReader {
public:
    LineSource& Open(const LogId& log) override { return source_.emplace(OpenLog(log)); }
    void Close() override { CloseLog(); }

private:
    std::optional<FileLines> source_;
};

}  // namespace vatro
