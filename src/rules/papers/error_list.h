// SPDX-License-Identifier: MIT
//
// The error list: every line of the ten logs against the rules of the entry, in Fejllist.txt in the log directory, so that what
// correction, import and an editor have brought in is found before the logs go in. No log is changed.
//
// It works with the marks of the entry desk, wiped for each log, and with gsCall and giQSOPoint; the current log is loaded again
// at the end. The rules look at texts trimmed of blanks on both sides. Some of them are meant as they stand though they look
// wrong: two of the received number test the received report, so that the number itself goes unchecked.
#pragma once

#include <string>
#include <string_view>

#include "papers/logs.h"

namespace vatro {

/// Makes the list, with the main form disabled meanwhile. A file that cannot be created is a failure.
void DanFejlliste();

/// The section of one log. A log that is missing or empty is told; so is any other failure, which ends the log there.
void DanFejlList(const LogId& log);
/// The line between two sections.
void DanFejlListHoved(const LogId& log);
/// All lines of the open log, at least one: fails with 62 if there is none.
void DanFejlListKrop(const LogId& log);

/// Shows the line above its first error, and sets `QSOShown`.
void DanFejlQSO(std::string_view linje, bool& QSOShown);

/// The text becomes empty if it is a time "Hh:Nn", with any character in the middle, and the message otherwise.
void ValiderTid(std::string& tekst);
/// Whether the text is a date.
bool GyldigDato(std::string_view tekst);

}  // namespace vatro
