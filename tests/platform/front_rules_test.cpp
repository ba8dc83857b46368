// SPDX-License-Identifier: MIT
#include "platform/choice_rules.h"

#include "replay/memory_front.h"

namespace vatro {

namespace {

const DriverFactory kMemory = [] { return std::make_unique<MemoryFront>(); };

}  // namespace

INSTANTIATE_TEST_SUITE_P(Memory, FrontRules, ::testing::Values(kMemory));
INSTANTIATE_TEST_SUITE_P(Memory, ChoiceRules, ::testing::Values(kMemory));

}  // namespace vatro
