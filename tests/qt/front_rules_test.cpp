// SPDX-License-Identifier: MIT
#include "platform/front_rules.h"

#include "qt/rules_layouts.h"
#include "qt/window_driver.h"

namespace vatro {

INSTANTIATE_TEST_SUITE_P(Window, FrontRules, ::testing::Values(DriverFactory([] {
                             AddRulesLayouts();
                             return std::make_unique<WindowDriver>();
                         })));

}  // namespace vatro
