// SPDX-License-Identifier: MIT
#include "command_line.h"

namespace vatro {

std::vector<std::string> CommandLine(int argc, char** argv) {
    return {argv, argv + argc};
}

}  // namespace vatro
