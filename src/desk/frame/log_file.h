// SPDX-License-Identifier: MIT
//
// The log of the current band and log mode: a text file in the log directory with one line per contact or note. The desk holds the
// same lines in the same order (DeskState::log), and the list of the main form shows them.
//
// The file is the record. Lines are only ever appended, or the file is replaced as a whole; every contact is on disk before the
// program goes on. All counters shown are computed from the lines when the log is loaded, and updated as contacts are logged.
#pragma once

#include <string>
#include <string_view>

#include "log/ten_logs.h"

namespace vatro {

/// Path of the log of a band and log mode. If the file does not exist, the log is empty.
std::string LogPath(std::string_view band, std::string_view mode);
/// Path of the current log.
std::string CurrentLogPath();

/// Loads the log of the current band and mode and rebuilds counters, worked marks and status bar. Multipliers and points are read from
/// their columns, not computed again, and giQSOnr becomes the number of the last contact line, not the largest number. Keep this:
/// operators overrule points and put numbers right by correcting lines (docs/rules.md). If the file cannot be opened or read, or a number
/// is out of range, the log ends there without a message. The entry fields are not touched: callers run ResetQSO right afterwards.
void IndlæsLogfil();

/// Empties the log in memory, the worked marks and the counters, and shows the current log as empty. The file is not touched.
void ClearLog();

/// Appends one line, contact or note, to the file of the current log. The line is synced to the disk on return. A failure ends the
/// program after one message.
void AppendLog(std::string_view line);

/// Calls AppendLog, then adds the line to the log in memory and selects it.
void LogLine(const std::string& line);

/// Appends a line to a file of the log directory, synced to the disk on return. Like AppendLog, ends the program on failure.
void AppendLine(std::string_view file, std::string_view line);

/// Replaces the file of the current log by the lines in memory: first writes and syncs a copy, FDkopi.txt, then deletes the old file
/// and renames the copy. Failures are not caught; they leave either the old log or the copy complete.
void SkrivLog();

/// Writes points, multipliers and score of the current log into the status bar.
void ShowScore();

/// Shows the message that the log directory has gone. In spite of its name ("check log directory") it checks nothing; the caller ends
/// the program.
void TjekLogLib();

}  // namespace vatro
