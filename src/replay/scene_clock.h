// SPDX-License-Identifier: MIT
//
// The clock of a scenario: it stands still until the scenario moves it, and what falls due meanwhile is delivered at its
// moment.
#pragma once

#include <optional>
#include <vector>

#include "platform.h"

namespace vatro {

/// Milliseconds of the scenario's time since its beginning; setting the local time does not touch it.
using Moment = long long;

/// What delivers events at their moments: the timers, the sound card.
class DueEvents {
public:
    virtual ~DueEvents() = default;
    /// When the next event falls due, or nothing.
    virtual std::optional<Moment> NextDue() const = 0;
    /// Delivers it; the clock stands at its moment.
    virtual void DeliverNext() = 0;
};

class SceneClock : public Clock, public DueEvents {
public:
    DateTime Now() override;
    double SecondsSinceMidnight() override;
    void Schedule(Ticker& ticker) override;

    /// Sets the local time.
    void Set(const DateTime& now);
    Moment Passed() const { return passed_; }
    /// Time never goes back.
    void MoveTo(Moment moment);

    std::optional<Moment> NextDue() const override;
    void DeliverNext() override;

private:
    struct Waiting {
        Ticker* ticker;
        Moment due;
    };

    /// Of equal moments the one that was scheduled first.
    std::vector<Waiting>::const_iterator Next() const;

    /// The local time at the moment 0.
    DateTime origin_{2026, 9, 5, 15, 0, 0, 0};
    Moment passed_ = 0;
    std::vector<Waiting> waiting_;
};

}  // namespace vatro
