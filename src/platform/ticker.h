// SPDX-License-Identifier: MIT
//
// The interface through which the clock ticks.
#pragma once

namespace vatro {

/// Something that ticks at an interval, such as a form's timer.
class Ticker {
public:
    virtual ~Ticker() = default;
    /// Milliseconds between two ticks.
    virtual int Interval() const = 0;
    /// Whether it ticks at all.
    virtual bool Running() const = 0;
    /// Called by the clock, as an event of its own, each time one interval has passed.
    virtual void Tick() = 0;
};

}  // namespace vatro
