// SPDX-License-Identifier: MIT
#include "forms/choice_rules.h"

#include "memory_front.h"

namespace vatro {

namespace {

const DriverFactory kMemory = [] { return std::make_unique<MemoryFront>(); };

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, FrontRules, ::testing::Values(kMemory));
INSTANTIATE_TEST_SUITE_P(Memory, ChoiceRules, ::testing::Values(kMemory));

}  // namespace vatro
