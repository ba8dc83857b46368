// SPDX-License-Identifier: MIT
//
// What the clock lets tick.
#pragma once

namespace vatro {

/// Something that ticks at an interval: a timer of a form.
class Ticker {
public:
    virtual ~Ticker() = default;
    /// Milliseconds between two ticks.
    virtual int Interval() const = 0;
    /// Whether it ticks at all.
    virtual bool Running() const = 0;
    /// One interval has passed. Called by the clock inside an event of its own.
    virtual void Tick() = 0;
};

}  // namespace vatro
