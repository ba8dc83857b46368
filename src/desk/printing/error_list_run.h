// SPDX-License-Identifier: MIT
//
// The run of the error list: Fejllist.txt in the log directory, made of the ten logs while the entry desk stands still.
#pragma once

#include "log/ten_logs.h"

namespace vatro {

class ErrorList;
class LineSink;

/// Makes the list, with the main form disabled meanwhile. gsCall and giQSOPoint are left as the last contact checked has them;
/// then the current log is loaded again and the entry is reset. Fails if the file cannot be created or written.
void MakeErrorList();

/// The section of one log. A log that is missing or empty is told; so is any other failure, which ends the section there.
void DanFejlList(ErrorList& checker, LineSink& list, const LogId& log);

}  // namespace vatro
