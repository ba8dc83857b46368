// SPDX-License-Identifier: MIT
//
// The logs for others: all of them on a web page, and all of them in one file for other logging programs. Both lie in the log
// directory and are named after the year in which they are made.
#pragma once

#include "log/ten_logs.h"

namespace vatro {

class LineSink;

/// Makes the web page. Fails if the file cannot be created or written, or a log not be read.
void MakeHtmlPage();
/// The section of one log. Without its file it is empty, and the links still find it.
void DanHtm(LineSink& page, const LogId& log);

/// Makes the ADIF file. A log directory that has gone is told, and the program goes on, whatever the box says of its end; any
/// other failure ends the export in silence. Either way the steps left over are skipped, also the closing of the file.
void ExportAdif();
/// The records of one log; a log that cannot be opened has none.
void DanAdif(LineSink& file, const LogId& log);

}  // namespace vatro
