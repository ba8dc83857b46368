// SPDX-License-Identifier: MIT
//
// What a paper tells of the station and of the moment at which it is made. The caller hands it in: papers know no settings and
// no clock.
#pragma once

#include <array>
#include <string>

#include "datetime.h"
#include "log/ten_logs.h"

namespace vatro {

inline constexpr std::size_t kBandCount = kTenLogs.size() / 2;

/// What a band is worked with.
struct Equipment {
    std::string radio;
    std::string antenna;
};

struct PaperContext {
    /// The station's own call.
    std::string call;
    /// "A" or "B".
    std::string contestClass;
    /// The telephone number as it is set, the default number included.
    std::string phone;
    /// 10, 15, 20, 40, 80 m.
    std::array<Equipment, kBandCount> equipment;
    /// Local time. Papers are headed with its year, which need not be that of the logs.
    DateTime now;
    /// Version of the program: "1.0.0".
    std::string version;
};

}  // namespace vatro
