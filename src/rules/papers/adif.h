// SPDX-License-Identifier: MIT
//
// Exports the contacts of a log for other logging programs in the Amateur Data Interchange Format (ADIF). A field is a tag with a
// name and a length, then the value; SRL_SENT, SRL_RCVD, POINTS and MULT are this program's own names. Records are separated by two
// empty lines. Notes are left out, duplicates are not.
#pragma once

#include <string>
#include <string_view>

#include "papers/logs.h"

namespace vatro {

/// Writes the head of the file, above all records.
void WriteAdifHead(LineSink& file);

/// Writes the records of a log.
void DanAdifKrop(LineSource& lines, LineSink& file, const LogId& log);

/// Returns the record of a contact line, including its line ends. An invalid date or time gets no field, since the reading program
/// would take the text for a date or time.
std::string AdifRecord(std::string_view line, std::string_view band);

}  // namespace vatro
