// SPDX-License-Identifier: MIT
//
// A program run as a process of its own, as from a command line.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vatro {

struct ProcessResult {
    /// -1 if the process did not end by itself.
    int exit = -1;
    std::string out;
    std::string err;
};

/// Runs the program in this directory and waits for it; the arguments in UTF-8, without its own name. On Windows the program is
/// the one of that name beside the tests, as the tests may have been carried to another machine.
ProcessResult RunProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const std::filesystem::path& directory);

}  // namespace vatro
