// SPDX-License-Identifier: MIT
#include "log/ten_logs.h"

namespace vatro {

std::string LogName(std::string_view band, std::string_view mode) {
    std::string name = "FD";
    name.append(band).append(mode).append(".txt");
    return name;
}

std::string_view StandardRST(std::string_view qsoMode) {
    if (qsoMode == "CW" || qsoMode == "RTTY" || qsoMode == "HELL" || qsoMode == "PSK31") return "599";
    if (qsoMode == "SSB") return "59";
    return {};
}

}  // namespace vatro
