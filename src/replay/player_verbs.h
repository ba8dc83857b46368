// SPDX-License-Identifier: MIT
//
// The player's commands and what they ask before an event is delivered.
#pragma once

#include <string>
#include <string_view>

#include "control_names.h"
#include "player.h"

namespace vatro {

/// One command of the language.
struct Player::Verb {
    enum class Kind { Setting, Event, Looking };
    std::string_view name;
    Kind kind;
    /// How many arguments; a command that takes the rest of the line has one.
    std::size_t fewest;
    std::size_t most;
    void (Player::*run)(const Command& command);
    /// Allowed while a message box is open.
    bool besideBox = false;
    bool takesRest = false;
};

/// Fails with CannotDeliver if the form cannot get events of the user: it is not loaded, hidden, disabled or blocked.
void CheckReachable(const Form* form, const std::string& name);

/// The control of this name; fails with CannotDeliver if it cannot get events of the user.
Control& ReachableControl(const std::string& name);

}  // namespace vatro
