// SPDX-License-Identifier: MIT
//
// All contacts of the ten logs for other logging programs, in the Amateur Data Interchange Format: "vatro", the year and ".adi"
// in the log directory. A field is a tag with a name and a length, then the value; SRL_SENT, SRL_RCVD, POINTS and MULT are names of this
// program's own. Records are separated by two empty lines. Notes are left out, duplicates are not.
#pragma once

#include <string>
#include <string_view>

#include "papers/logs.h"

namespace vatro {

/// Makes the file. A log directory that has gone is told, and the program goes on, whatever the box says of its end; any other
/// failure ends the export in silence. Either way the steps left over are skipped, also the closing of the file.
void EksporterAdif();

/// The records of one log; a log that cannot be opened has none.
void DanAdif(const LogId& log);
/// The records of the open log.
void DanAdifKrop(const LogId& log);

/// Adds the record of a contact line, with the line ends in it. A date or time that is none has no field: whatever stood there
/// would be taken for one.
void TilføjPost(std::string& post, std::string_view linje, std::string_view bånd);

}  // namespace vatro
