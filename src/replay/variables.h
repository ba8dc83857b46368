// SPDX-License-Identifier: MIT
//
// The shared variables of the program by name, as a scenario looks at them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vatro {

/// The value of the variable: a text in quotes, an integer, or true or false; nothing if there is no such variable.
std::optional<std::string> VariableValue(std::string_view name);

}  // namespace vatro
