// SPDX-License-Identifier: MIT
//
// The contacts of a log for other logging programs, in the Amateur Data Interchange Format. A field is a tag with a name and a
// length, then the value; SRL_SENT, SRL_RCVD, POINTS and MULT are names of this program's own. Records are separated by two empty
// lines. Notes are left out, duplicates are not.
#pragma once

#include <string>
#include <string_view>

#include "papers/logs.h"

namespace vatro {

/// Writes what stands above all records.
void WriteAdifHead(LineSink& file);

/// Writes the records of a log.
void DanAdifKrop(LineSource& lines, LineSink& file, const LogId& log);

/// The record of a contact line, with the line ends in it. A date or time that is none has no field: whatever stood there
/// would be taken for one.
std::string AdifRecord(std::string_view line, std::string_view band);

}  // namespace vatro
