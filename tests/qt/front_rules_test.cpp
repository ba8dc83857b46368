// SPDX-License-Identifier: MIT
#include "forms/choice_rules.h"

#include "qt/rules_layouts.h"
#include "window_driver.h"

namespace vatro {

namespace {

const DriverFactory kWindow = [] {
    AddRulesLayouts();
    return std::make_unique<WindowDriver>();
};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Window, FrontRules, ::testing::Values(kWindow));
INSTANTIATE_TEST_SUITE_P(Window, ChoiceRules, ::testing::Values(kWindow));

}  // namespace vatro
