// SPDX-License-Identifier: MIT
//
// Layouts for the small forms that test the platform's rules.
#pragma once

namespace vatro {

/// Registers the forms with the window front.
void AddRulesLayouts();

}  // namespace vatro
