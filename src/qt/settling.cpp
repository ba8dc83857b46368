// SPDX-License-Identifier: MIT
#include "settling.h"

#include <utility>

namespace vatro {

namespace {

/// Milliseconds. Window managers need some ten of them for all their steps.
constexpr int kRest = 250;

}  // namespace

Settling::Settling(std::function<void(bool byManager)> rested) : rested_(std::move(rested)) {
    timer_.setSingleShot(true);
    timer_.setInterval(kRest);
    // If the program was busy, moves may be waiting together with the end of the time. They are delivered before the inner timer.
    timer_.callOnTimeout([this] { QTimer::singleShot(0, &timer_, [this] { Rest(); }); });
}

void Settling::Begin() {
    active_ = true;
    timer_.start();
}

void Settling::Moved() {
    // A window that the user drags out of its maximised state is moved by the manager only at first.
    if (!active_) timer_.start();
}

void Settling::Rest() {
    // A new change may have begun.
    if (!timer_.isActive()) rested_(std::exchange(active_, false));
}

}  // namespace vatro
