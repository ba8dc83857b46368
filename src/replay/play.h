// SPDX-License-Identifier: MIT
//
// The program that plays scenarios, on any front.
#pragma once

#include <functional>
#include <memory>

#include "replay/driver.h"

namespace vatro {

/// What the command line asks for, done: 0, or 1 for the first scenario that differs, or 2 for one that cannot be
/// played. `makeDriver` makes the front anew for each scenario; the arguments are main's.
int PlayMain(int argc, char** argv, const std::function<std::unique_ptr<Driver>()>& makeDriver);

}  // namespace vatro
