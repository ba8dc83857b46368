// SPDX-License-Identifier: MIT
//
// Runs a program as a separate process, as from a command line.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vatro {

struct ProcessResult {
    /// The exit code, or -1 if the process did not end by itself.
    int exit = -1;
    std::string out;
    std::string err;
};

/// Runs the program in this directory and waits for it. The arguments are in UTF-8 and do not include the program's name. On
/// Windows the program of that name beside the tests is run, because the tests may have been copied to another machine.
ProcessResult RunProcess(const std::filesystem::path& program, const std::vector<std::string>& arguments,
                         const std::filesystem::path& directory);

}  // namespace vatro
