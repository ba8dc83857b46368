// SPDX-License-Identifier: MIT
#include "frame/state.h"

#include <memory>

namespace vatro {

namespace {

/// Never destroyed: when the screen is lost, Qt calls exit(), and an exit handler stores the settings from here after the destructors of
/// most static objects have run.
std::unique_ptr<DeskState>& Current() {
    static auto* const state = new std::unique_ptr<DeskState>(std::make_unique<DeskState>());
    return *state;
}

}  // namespace

DeskState& desk() {
    return *Current();
}

void ResetDesk() {
    Current() = std::make_unique<DeskState>();
}

}  // namespace vatro
