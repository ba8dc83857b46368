// SPDX-License-Identifier: MIT
//
// Imports the log of one band that was kept with the logger CT. It becomes a new log; a log that exists already is never added to.
//
// The CT log is a text file in the program's code page. The last two characters of its name are the band in metres; columns 44-46 of
// its third line are the mode. A line with "-" in column 7 is a contact; all other lines are skipped:
//
//    5-13  date, day-month-year, the month as a word     36-47  call
//   17-18  hour, UTC                                     49-51  report received
//   19-20  minute                                        53-56  serial number received
//   23-26  serial number sent
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// Asks for the file and imports it; does nothing on Cancel. The menu entry is called mnuFunktionerImporterCtAll but imports one log,
/// not all.
void ImportCtFromMenu();

/// Imports the file. The current band and mode become those of the file, and the new log becomes the current one.
///
/// Every failure before the first contact is taken to mean that there is no such log yet, which is the usual cause. If the log exists
/// already, the CT file stays open. The next import of the run then cannot open its own file and goes on in the first one, with no band
/// and the log mode CW, so the contacts go to FDCW.txt. A file of fewer than three lines is reported as empty and leaves the band empty
/// too. Keep both: no paper reads FDCW.txt, so the ten logs are safe, and a log that exists must never be added to (docs/rules.md). Fails
/// with 52 if the CT file cannot be opened and none is open from an earlier import.
void ImporterCt(const std::string& path);

/// Logs one contact line with the operator "CT-IMP", without asking anything; giQSOnr becomes its serial number. A contact with an
/// unknown prefix counts as many points as one that is entered, but is not written to ukendt.txt: that file names only contacts made at
/// this desk, and the import of an old log would fill it (docs/rules.md).  A contact without a call is logged too, with the 3 points of a
/// European station. Fails with 13 if the date is invalid, and with 6 if the serial number sent exceeds 16 bits; no line is logged then.
void ImportQSO(std::string_view line);

}  // namespace vatro
