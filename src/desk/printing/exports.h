// SPDX-License-Identifier: MIT
//
// Exports all logs: to a web page, and to one ADIF file for other logging programs. Both are written to the log directory and named
// after the year in which they are made.
#pragma once

#include "log/ten_logs.h"

namespace vatro {

class LineSink;

/// Makes the web page. Fails if the file cannot be created or written, or if a log cannot be read.
void MakeHtmlPage();
/// Writes the section of one log. If the log cannot be opened, an empty section is written, so that the link to it works.
void DanHtm(LineSink& page, const LogId& log);

/// Makes the ADIF file. If the log directory has gone, shows the message about it, and the program goes on although the message says that
/// it stops. Any other failure ends the export without a message. In both cases the remaining steps are skipped, and the file stays open.
void ExportAdif();
/// Writes the records of one log; none if it cannot be opened.
void DanAdif(LineSink& file, const LogId& log);

}  // namespace vatro
