// SPDX-License-Identifier: MIT
#include "frame/state.h"

#include <memory>

namespace vatro {

namespace {

std::unique_ptr<DeskState>& Current() {
    static auto state = std::make_unique<DeskState>();
    return state;
}

}  // namespace

DeskState& desk() {
    return *Current();
}

void ResetDesk() {
    Current() = std::make_unique<DeskState>();
}

}  // namespace vatro
