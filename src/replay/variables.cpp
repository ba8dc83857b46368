// SPDX-License-Identifier: MIT
#include "variables.h"

#include "frame/shown_values.h"
#include "scenario.h"

namespace vatro {

namespace {

struct Formatted {
    std::string operator()(const std::string& text) const { return Quoted(text); }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(std::int32_t number) const { return std::to_string(number); }
};

}  // namespace

std::optional<std::string> VariableValue(std::string_view name) {
    if (const auto value = FindShownValue(name)) return std::visit(Formatted{}, *value);
    return std::nullopt;
}

}  // namespace vatro
