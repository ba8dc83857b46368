// SPDX-License-Identifier: MIT
//
// The values of the program that have a name outside it: operators' notes speak of them, and scenarios look at them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vatro {

/// A text of the code page, a flag or a number.
using ShownValue = std::variant<std::string, bool, std::int32_t>;

/// The value of this name, as it is now; nothing if there is none.
std::optional<ShownValue> FindShownValue(std::string_view name);

}  // namespace vatro
