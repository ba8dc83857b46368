// SPDX-License-Identifier: MIT
//
// The program's values that are known by name outside the source: operators know them, and scenarios check them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vatro {

/// A text in the program's code page, a flag or a number.
using ShownValue = std::variant<std::string, bool, std::int32_t>;

/// The current value with this name; nothing if there is none.
std::optional<ShownValue> FindShownValue(std::string_view name);

}  // namespace vatro
