// SPDX-License-Identifier: MIT
//
// The log of the current band and log mode: a text file with one contact line per contact, in the log directory. The desk holds the same
// lines in the same order (DeskState::log), and the list of the main form shows them.
//
// The file is the record. It is only ever appended to, or replaced whole; every contact is on disk before the program goes
// on. All numbers shown are derived from the lines when the log is loaded and kept up to date as contacts are logged.
#pragma once

#include <string>
#include <string_view>

#include "log/ten_logs.h"

namespace vatro {

/// Path of the log of a band and log mode; no file means no contact.
std::string LogPath(std::string_view band, std::string_view mode);
/// Path of the current log.
std::string CurrentLogPath();

/// Loads the log of the current band and mode and rebuilds counters, worked marks and status panels. The
/// multiplier and points columns count as they stand; the last contact line gives the serial number. A failure to open or
/// read, or a number out of range, is the end of the log, without a word. The entry fields are not touched: callers run
/// ResetQSO right after it.
void IndlæsLogfil();

/// Empties the log, the worked marks and the counters, and shows the current log as an empty one.
void ClearLog();

/// Appends one line, contact or note, to the file of the current log; it is synced to the disk on return. A failure
/// ends the program after one message.
void AppendLog(std::string_view line);

/// AppendLog; then the line is the last of the log, and selected.
void LogLine(const std::string& line);

/// Appends a line to a file of the log directory, with the promise and the failure of AppendLog.
void AppendLine(std::string_view file, std::string_view line);

/// Replaces the file of the current log by the lines in memory: a copy, FDkopi.txt, is written and synced before the old
/// file goes and the copy takes its name. A failure is not caught and leaves the old log or the copy, whole.
void SkrivLog();

/// Writes points, multipliers and score of the current log into the status bar.
void ShowScore();

/// Tells that the log directory has gone, and nothing more, whatever its name says. The caller ends the program.
void TjekLogLib();

}  // namespace vatro
