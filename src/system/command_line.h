// SPDX-License-Identifier: MIT
//
// What a program without a window gets from the one who runs it, and gives back: UTF-8, and bytes as they stand.
#pragma once

#include <string>
#include <vector>

namespace vatro {

/// To be called once, by main, before anything is read or printed: the arguments in UTF-8, the program's own name first.
/// Standard input, output and error then carry their bytes unchanged, and a terminal shows them as UTF-8.
std::vector<std::string> CommandLine(int argc, char** argv);

}  // namespace vatro
