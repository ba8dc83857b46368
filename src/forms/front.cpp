// SPDX-License-Identifier: MIT
#include "front.h"

#include <cassert>

#include "platform.h"

namespace vatro {

namespace {
Front* installed = nullptr;
}

Front& InstalledFront() {
    assert(installed != nullptr);
    return *installed;
}

void InstallPlatform(Front& front, const Platform& services) {
    InstallPlatform(services);
    installed = &front;
}

}  // namespace vatro
