// SPDX-License-Identifier: MIT
#include "log/ten_logs.h"

namespace vatro {

std::string LogName(std::string_view band, std::string_view mode) {
    std::string name = "FD";
    name.append(band).append(mode).append(".txt");
    return name;
}

}  // namespace vatro
