// SPDX-License-Identifier: MIT
//
// Watches the clock by which contacts are logged. The log is kept in universal time, which the program computes from the computer's
// local time and an offset that the operator has set. If the offset does not fit the computer, every contact is logged with a wrong
// time, and nothing else in the program shows it.
#pragma once

#include <chrono>
#include <optional>

#include "datetime.h"
#include "lamp.h"

namespace vatro {

class ClockWatch {
public:
    /// The clocks, all read at the same moment.
    struct Reading {
        /// The computer's local time and universal time.
        DateTime local;
        DateTime universal;
        /// Hours from local time to the time that is logged, as set by the operator; nothing if the setting is not a number.
        std::optional<int> offset;
        /// Time since some moment, by a clock that nobody can set. It may stand still while the computer sleeps.
        std::chrono::milliseconds steady{0};
    };

    /// Looks at the clocks; to be called at least every second, and before each key. Returns true if the clock of the log has jumped
    /// since the last call, because it was set, because the computer slept, or because summer time has begun or ended: the time in the
    /// entry form may be wrong then, and the wait for the next full minute too.
    bool Look(const Reading& reading);

    /// The state after the last look. A difference of more than two minutes between program and computer is shown as long as it lasts.
    /// A jump of more than two minutes is shown for a minute.
    Lamp Shown() const;
    /// Whether program and computer differ, so that the offset must be changed.
    bool Differs() const { return differs_; }

private:
    std::optional<Reading> last_;
    /// Universal time as it is logged; nothing if the offset is not a number.
    std::optional<DateTime> logged_;
    bool differs_ = false;
    /// The last great jump in milliseconds, and until when it is shown, by the steady clock.
    long long jump_ = 0;
    std::chrono::milliseconds jumpShownUntil_{0};
};

}  // namespace vatro
