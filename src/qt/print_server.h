// SPDX-License-Identifier: MIT
//
// Checks whether the print server answers. Where printing goes through a server (CUPS), a request for its printers blocks for as long
// as the server accepts connections but does not answer. So a small program beside this one, vatro-printers, asks first and is ended if
// it takes too long.
//
// Implemented by print_server_posix.cpp and print_server_windows.cpp.
#pragma once

namespace vatro {

/// Returns within two seconds. True if the server can be asked: either it answers, or it refuses at once because there is none.
bool PrintServerAnswers();

}  // namespace vatro
