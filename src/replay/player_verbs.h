// SPDX-License-Identifier: MIT
//
// The player's table of commands, and the checks before an event is delivered.
#pragma once

#include <string>
#include <string_view>

#include "control_names.h"
#include "player.h"

namespace vatro {

/// One command of the scenario language.
struct Player::Verb {
    enum class Kind { Setting, Event, Looking };
    std::string_view name;
    Kind kind;
    /// Number of arguments. The rest of a line counts as one argument.
    std::size_t fewest;
    std::size_t most;
    void (Player::*run)(const Command& command);
    /// Whether the command is allowed while a message box is open.
    bool besideBox = false;
    bool takesRest = false;
};

/// Fails with CannotDeliver unless the form can receive user events: it must be loaded, shown, enabled, and not blocked by a modal
/// form.
void CheckReachable(const Form* form, const std::string& name);

/// The control with this name. Fails with CannotDeliver if it cannot receive user events.
Control& ReachableControl(const std::string& name);

}  // namespace vatro
