// SPDX-License-Identifier: MIT
#include "clock.h"

#include "deliver.h"
#include "qt_front.h"
#include "ticker.h"

namespace vatro {

DateTime FromQtTime(const QDateTime& moment) {
    const QDate date = moment.date();
    const QTime time = moment.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second(), time.msec()};
}

DateTime QtClock::Now() {
    return FromQtTime(QDateTime::currentDateTime());
}

double QtClock::SecondsSinceMidnight() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void QtClock::Schedule(Ticker& ticker) {
    const auto found = ticking_.find(&ticker);
    if (!ticker.Running()) {
        // The ticker may be switched off in its own tick, so delete the timer later.
        if (found != ticking_.end()) {
            found->second->stop();
            found->second.release()->deleteLater();
            ticking_.erase(found);
        }
        return;
    }
    if (found != ticking_.end()) {
        found->second->start(ticker.Interval());
        return;
    }
    auto timer = std::make_unique<QTimer>();
    timer->setTimerType(Qt::PreciseTimer);
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(), [this, &ticker] { Tick(ticker); });
    timer->start(ticker.Interval());
    ticking_[&ticker] = std::move(timer);
}

void QtClock::Tick(Ticker& ticker) {
    if (TicksHeld()) {
        // A window is being painted inside a handler: delay the tick until the handler has ended.
        const auto found = ticking_.find(&ticker);
        QTimer::singleShot(1, found->second.get(), [this, &ticker] { Tick(ticker); });
        return;
    }
    Deliver([&] { ticker.Tick(); });
}

}  // namespace vatro
