// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace vatro {

/// The version of the program: major, minor and revision, joined by ".".
std::string VersionText();

}  // namespace vatro
