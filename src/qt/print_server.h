// SPDX-License-Identifier: MIT
//
// Whether the print server answers. Where printing goes through a server (CUPS), asking it for its printers waits as long as it
// accepts and says nothing; so a small program, vatro-printers beside this one, asks first, and is ended if it takes too long.
//
// print_server_posix.cpp and print_server_windows.cpp have it.
#pragma once

namespace vatro {

/// Returns after two seconds at the latest. True if the server can be asked: it answers, or refuses at once because there is none.
bool PrintServerAnswers();

}  // namespace vatro
