// SPDX-License-Identifier: MIT
//
// Where the papers of the menu come from and go to: the log files under number 1, the paper under number 2, both in the log
// directory, and what the settings and the clock say now.
#pragma once

#include <optional>
#include <string_view>

#include "file_lines.h"
#include "papers/context.h"
#include "papers/logs.h"
#include "papers/summary.h"

namespace vatro {

/// File numbers: of the log being read, and of the paper being written.
inline constexpr int kLogFile = 1;
inline constexpr int kPaperFile = 2;

/// What a paper made now tells of the station.
PaperContext CurrentPaperContext();
/// Counts the log files for a summary made now.
Tally CurrentTally();

/// Opens a log for reading. Fails as Files::Open does.
FileLines OpenLog(const LogId& log);
/// Opens a file of the log directory for reading, under the number of the logs.
FileLines OpenInLogLibrary(std::string_view name);
/// Opens a file of the log directory for a paper, which replaces it. Fails as Files::Open does.
FileSink OpenPaper(std::string_view name);

void CloseLog();
void ClosePaper();

/// The log files, for papers that count all of them.
///
/// A log that is not closed stays open on purpose, also when this object goes: its number is then in use, so that every log
/// after it counts nothing, and the next load of the log at the entry desk finds nothing either. After a disk failure in the
/// middle of a log the operator so sees at once that something is wrong; with the file closed, the paper would go in with half
/// a log in it.
class LogFiles : public LogReader {
public:
    LineSource& Open(const LogId& log) override { return source_.emplace(OpenLog(log)); }
    void Close() override { CloseLog(); }

private:
    std::optional<FileLines> source_;
};

}  // namespace vatro
