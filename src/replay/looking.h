// SPDX-License-Identifier: MIT
//
// What a scenario sees: the output lines of show, cat and ls, in UTF-8. Looking loads nothing and changes nothing.
//
// Of a control or form that is shown the front is asked first whether the user sees the same; anything else fails with
// CannotDeliver, as does what does not exist.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "driver.h"
#include "scenario.h"
#include "world.h"

namespace vatro {

/// show, with all of its arguments.
Output Show(const std::vector<std::string>& arguments, Driver& driver);

/// What a control holds, and its state. Fails with CannotDeliver for one that has nothing to show.
Output ShowControl(const Control& control);
Output ShowControlState(const Control& control);

/// cat: each line of the content between bars, with what ends it if that is not CR LF.
Output ShowLines(std::string_view content);
/// A file or directory that is missing is told so.
Output Cat(const World& world, const std::string& path);
Output List(const World& world, const std::string& directory);

/// The line that tells a box that opens.
std::string BoxLine(const MessageBox& box);

}  // namespace vatro
