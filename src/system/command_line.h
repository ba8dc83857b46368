// SPDX-License-Identifier: MIT
//
// Command-line arguments in UTF-8, and byte-exact standard streams, for programs without a window.
#pragma once

#include <string>
#include <vector>

namespace vatro {

/// Call once, from main, before anything is read or printed. Returns the arguments in UTF-8; the first is the program's name. From
/// then on standard input, output and error pass bytes unchanged, and a terminal shows them as UTF-8.
std::vector<std::string> CommandLine(int argc, char** argv);

}  // namespace vatro
