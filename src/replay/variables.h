// SPDX-License-Identifier: MIT
//
// Access by name to the program's shared variables, for scenarios.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vatro {

/// The value of the variable: a quoted text, an integer, true or false. Nothing if there is no such variable.
std::optional<std::string> VariableValue(std::string_view name);

}  // namespace vatro
