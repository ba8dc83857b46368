// SPDX-License-Identifier: MIT
#include "scene_clock.h"

#include <algorithm>

#include "program.h"
#include "ticker.h"

namespace vatro {

DateTime SceneClock::Now() {
    return AddMilliseconds(origin_, passed_);
}

double SceneClock::SecondsSinceMidnight() {
    const DateTime now = Now();
    return now.hour * 3600 + now.minute * 60 + now.second + now.millisecond / 1000.0;
}

void SceneClock::Set(const DateTime& now) {
    origin_ = AddMilliseconds(now, -passed_);
}

void SceneClock::MoveTo(SceneTime moment) {
    passed_ = std::max(passed_, moment);
}

void SceneClock::Schedule(Ticker& ticker) {
    std::erase_if(waiting_, [&](const Waiting& waiting) { return waiting.ticker == &ticker; });
    if (ticker.Running()) waiting_.push_back({&ticker, passed_ + ticker.Interval()});
}

std::vector<SceneClock::Waiting>::const_iterator SceneClock::Next() const {
    return std::min_element(waiting_.begin(), waiting_.end(), [](const Waiting& a, const Waiting& b) { return a.due < b.due; });
}

std::optional<SceneTime> SceneClock::NextDue() const {
    const auto next = Next();
    if (next == waiting_.end()) return std::nullopt;
    return next->due;
}

void SceneClock::DeliverNext() {
    const auto next = Next();
    if (next == waiting_.end()) return;
    Ticker& ticker = *next->ticker;
    // Restart the interval before the handler runs, because the handler may change it.
    Schedule(ticker);
    Dispatch([&] { ticker.Tick(); });
}

}  // namespace vatro
