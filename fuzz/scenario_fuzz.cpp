// SPDX-License-Identifier: MIT
//
// The reader of scenarios either refuses a text and names a line number that exists, or reads it; written out with the expected
// output that it read, it still matches that output.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "scenario.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vatro;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const Scenario scenario(text);
        std::vector<OutputLines> own;
        for (const Command& command : scenario.Commands()) own.push_back(command.expected);
        if (!scenario.Matches(own) || !scenario.Diff("x", own).empty()) __builtin_trap();
        const Scenario again(scenario.WithOutput(own));
        if (!again.Matches(own)) __builtin_trap();
    } catch (const ScenarioError& error) {
        if (error.Line() > static_cast<std::size_t>(std::ranges::count(text, '\n')) + 1) __builtin_trap();
    }
    return 0;
}
