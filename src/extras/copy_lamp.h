// SPDX-License-Identifier: MIT
//
// The lamp that tells how the second copy of the logs stands.
#pragma once

#include <string_view>

#include "lamp.h"
#include "live_copy.h"

namespace vatro {

/// `directory` is the directory of the copy as the operator chose it, in the code page. Off if no directory has been chosen.
Lamp CopyLamp(const CopyStatus& status, std::string_view directory);

}  // namespace vatro
