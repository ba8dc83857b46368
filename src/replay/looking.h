// SPDX-License-Identifier: MIT
//
// What a scenario sees: the output lines of the commands show, cat and ls, in UTF-8. These commands load nothing and change nothing.
//
// Before a control or form is shown, the front must confirm that the user sees the same; otherwise the command fails with
// CannotDeliver. It also fails if the thing to show does not exist.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "driver.h"
#include "scenario.h"
#include "world.h"

namespace vatro {

/// The command show, given all its arguments.
OutputLines Show(const std::vector<std::string>& arguments, Driver& driver);

/// The control's content and state. Fails with CannotDeliver if there is nothing to show for this kind of control.
OutputLines ShowControl(const Control& control);
/// The state beside the content: enabled, visible and, depending on the kind, limit, selection, colours or font.
OutputLines ShowControlState(const Control& control);

/// The output of cat: each line of the content between bars, followed by its line ending if that is not CR LF.
OutputLines ShowLines(std::string_view content);
/// Reports a missing file or directory instead of failing.
OutputLines Cat(const World& world, const std::string& path);
/// The output of ls: the names in a directory. Reports a missing directory instead of failing.
OutputLines List(const World& world, const std::string& directory);

/// The output line for a message box that opens.
std::string BoxLine(const MessageBox& box);

}  // namespace vatro
