// SPDX-License-Identifier: MIT
//
// What a paper says about the station and about the time at which it is made. The caller provides it: papers read no settings and no
// clock.
#pragma once

#include <array>
#include <string>

#include "datetime.h"
#include "log/ten_logs.h"

namespace vatro {

inline constexpr std::size_t kBandCount = kTenLogs.size() / 2;

/// Radio and antenna of a band.
struct Equipment {
    std::string radio;
    std::string antenna;
};

struct PaperContext {
    /// The station's own call.
    std::string call;
    /// "A" or "B".
    std::string contestClass;
    /// The telephone number from the settings, which may be the default number.
    std::string phone;
    /// By band: 10, 15, 20, 40, 80 m.
    std::array<Equipment, kBandCount> equipment;
    /// Local time. Its year goes into the headings of papers and need not be that of the logs.
    DateTime now;
    /// Version of the program, such as "1.0.0".
    std::string version;
};

}  // namespace vatro
