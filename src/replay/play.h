// SPDX-License-Identifier: MIT
//
// The program that plays scenarios, on any front.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "driver.h"

namespace vatro {

/// What the command line asks for, done: 0, or 1 for the first scenario that differs, or 2 for one that cannot be
/// played. `makeDriver` makes the front anew for each scenario; the arguments are in UTF-8, the program's own name first.
int PlayMain(const std::vector<std::string>& arguments, const std::function<std::unique_ptr<Driver>()>& makeDriver);

}  // namespace vatro
