// SPDX-License-Identifier: MIT
//
// Copies of the logs in a directory of the operators' choice.
#pragma once

#include <string>

namespace vatro {

/// The backup directory, without a final separator; empty if it is not set.
extern std::string gsBackupLib;

}  // namespace vatro
