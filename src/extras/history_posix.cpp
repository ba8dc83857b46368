// SPDX-License-Identifier: MIT
#include <cstdlib>

#include "history.h"

namespace vatro {

namespace fs = std::filesystem;

fs::path StateDirectory() {
    const char* state = std::getenv("XDG_STATE_HOME");
    if (state != nullptr && *state == '/') return fs::path(state) / "vatro";
    const char* home = std::getenv("HOME");
    return fs::path(home != nullptr ? home : "/tmp") / ".local/state/vatro";
}

}  // namespace vatro
