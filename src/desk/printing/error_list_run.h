// SPDX-License-Identifier: MIT
//
// Makes the error list: Fejllist.txt in the log directory, from the ten logs, while the entry desk is disabled.
#pragma once

#include "log/ten_logs.h"

namespace vatro {

class ErrorList;
class LineSink;

/// Makes the list; the main form is disabled while it runs. gsCall and giQSOPoint keep the values of the last contact checked; then the
/// current log is loaded again and the entry is reset. Fails if the file cannot be created or written.
void MakeErrorList();

/// Writes the section of one log. If the log is missing or empty, the list says so; it says the same on any other failure, which ends
/// the section there.
void DanFejlList(ErrorList& checker, LineSink& list, const LogId& log);

}  // namespace vatro
