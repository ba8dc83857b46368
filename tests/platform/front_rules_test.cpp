// SPDX-License-Identifier: MIT
#include "platform/front_rules.h"

#include "replay/memory_front.h"

namespace vatro {

INSTANTIATE_TEST_SUITE_P(Memory, FrontRules, ::testing::Values(DriverFactory([] { return std::make_unique<MemoryFront>(); })));

}  // namespace vatro
