// SPDX-License-Identifier: MIT
#include "keyer/keyer_state.h"

namespace vatro {

KeyerState& keyerState() {
    static KeyerState state;
    return state;
}

void ResetKeyerState() {
    keyerState() = {};
}

}  // namespace vatro
