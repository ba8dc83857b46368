// SPDX-License-Identifier: MIT
//
// Layouts for the small forms of the platform's rules.
#pragma once

namespace vatro {

/// Makes the two forms known to the window front.
void AddRulesLayouts();

}  // namespace vatro
