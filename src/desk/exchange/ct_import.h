// SPDX-License-Identifier: MIT
//
// Brings in the log of one band that was kept with the logger CT. It becomes a log of its own: one that exists already is
// never added to.
//
// The CT log is a text file of the code page. The last two characters of its name are the band in metres; columns 44-46 of
// its third line are the mode. A line with "-" in column 7 is a contact, every other line is passed over:
//
//    5-13  date, day-month-year, the month as a word     36-47  call
//   17-18  hour, UTC                                     49-51  report received
//   19-20  minute                                        53-56  serial number received
//   23-26  serial number sent
#pragma once

#include <string>
#include <string_view>

namespace vatro {

/// Asks for the file and imports it; nothing on Cancel.
void ImportCtFromMenu();

/// Imports the file. Band and mode become its own, and the new log the current one.
///
/// Every failure before the first contact counts as "there is no such log yet", which is what it is as a rule. After a log that
/// existed, the CT file stays open: the next import of the run cannot open its own, and goes on with the contacts of the first
/// one, to a log without band. A file of fewer than three lines is told to be empty and leaves band and mode empty too. Both are
/// meant so. A file that cannot be opened at all fails with 52.
void ImporterCt(const std::string& path);

/// Logs one contact line with the operator "CT-IMP", without any question; giQSOnr becomes its serial number. An unknown prefix
/// counts 0 points and is not recorded anywhere. The line has the columns of every other line, whatever the CT line has. Fails
/// with 13 if the date is none, with 5 if there is no call; nothing has been logged then.
void ImportQSO(std::string_view line);

}  // namespace vatro
