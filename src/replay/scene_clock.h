// SPDX-License-Identifier: MIT
//
// The clock of a scenario. It stands still until the scenario advances it, and then delivers each event at the moment it is due.
#pragma once

#include <optional>
#include <vector>

#include "platform.h"

namespace vatro {

/// Milliseconds of scenario time since the start. Setting the local time does not affect it.
using SceneTime = long long;

/// A source of timed events, such as the timers or the sound card.
class DueEvents {
public:
    virtual ~DueEvents() = default;
    /// When the next event is due, or nothing.
    virtual std::optional<SceneTime> NextDue() const = 0;
    /// Delivers the next event. The clock must already stand at its moment.
    virtual void DeliverNext() = 0;
};

/// The clock service of a scenario, which also delivers the ticks of timers.
class SceneClock : public Clock, public DueEvents {
public:
    DateTime Now() override;
    double SecondsSinceMidnight() override;
    void Schedule(Ticker& ticker) override;

    /// Sets the local time.
    void Set(const DateTime& now);
    /// Milliseconds since the start of the scenario.
    SceneTime Passed() const { return passed_; }
    /// Advances the clock; time never goes back.
    void MoveTo(SceneTime moment);

    std::optional<SceneTime> NextDue() const override;
    void DeliverNext() override;

private:
    struct Waiting {
        Ticker* ticker;
        SceneTime due;
    };

    /// The next event to deliver. Of events due at the same moment, the one scheduled first.
    std::vector<Waiting>::const_iterator Next() const;

    /// The local time at moment 0.
    DateTime origin_{2026, 9, 5, 15, 0, 0, 0};
    SceneTime passed_ = 0;
    std::vector<Waiting> waiting_;
};

}  // namespace vatro
