// SPDX-License-Identifier: MIT
//
// The choice of the log directory.
#pragma once

namespace vatro {

/// Asks for the log directory: the user picks or creates the marker file setlog.txt in it. The file is empty and sets nothing, although
/// its name says "set". On success loads the log that is now the current one. On Cancel or any failure the old directory is kept; if
/// there is none, the program ends.
void SetLogLib();

}  // namespace vatro
