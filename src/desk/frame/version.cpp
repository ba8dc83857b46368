// SPDX-License-Identifier: MIT
#include "frame/version.h"

#include "numbers.h"
#include "platform.h"

namespace vatro {

std::string VersionText() {
    const Version& version = platform().version;
    return PlainNumber(version.major) + "." + PlainNumber(version.minor) + "." + PlainNumber(version.revision);
}

}  // namespace vatro
