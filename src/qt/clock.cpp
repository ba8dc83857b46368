// SPDX-License-Identifier: MIT
#include "clock.h"

#include <QDateTime>

#include "controls.h"
#include "deliver.h"
#include "front.h"

namespace vatro {

DateTime QtClock::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second(), time.msec()};
}

double QtClock::SecondsSinceMidnight() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void QtClock::Schedule(Timer& timer) {
    const auto found = ticking_.find(&timer);
    if (!timer.Running()) {
        // The timer may be switched off from its own tick.
        if (found != ticking_.end()) {
            found->second->stop();
            found->second.release()->deleteLater();
            ticking_.erase(found);
        }
        return;
    }
    if (found != ticking_.end()) {
        found->second->start(timer.Interval());
        return;
    }
    auto ticker = std::make_unique<QTimer>();
    ticker->setTimerType(Qt::PreciseTimer);
    QObject::connect(ticker.get(), &QTimer::timeout, ticker.get(), [this, &timer] { Tick(timer); });
    ticker->start(timer.Interval());
    ticking_[&timer] = std::move(ticker);
}

void QtClock::Tick(Timer& timer) {
    if (TicksHeld()) {
        // A window is being painted inside a handler: the tick waits until the handler has ended.
        const auto found = ticking_.find(&timer);
        QTimer::singleShot(1, found->second.get(), [this, &timer] { Tick(timer); });
        return;
    }
    Deliver([&] { timer.Tick(); });
}

}  // namespace vatro
