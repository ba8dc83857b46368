// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vatro {

/// Major, minor and revision of the program, joined by ".".
std::string VersionText();

}  // namespace vatro
