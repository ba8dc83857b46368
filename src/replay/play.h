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

/// Carries out the command line. Returns 0 on success, 1 if a scenario's output differs, and 2 for wrong arguments or if a scenario
/// cannot be played; it stops at the first scenario that fails. `makeDriver` creates a new front for each scenario. The arguments
/// are in UTF-8; the first is the program's name.
int PlayMain(const std::vector<std::string>& arguments, const std::function<std::unique_ptr<Driver>()>& makeDriver);

}  // namespace vatro
