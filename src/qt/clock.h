// SPDX-License-Identifier: MIT
//
// The computer's local time, and the forms' timers.
#pragma once

#include <QDateTime>
#include <QTimer>
#include <map>
#include <memory>

#include "platform.h"

namespace vatro {

/// The moment as the program has it, in the time zone of `moment`.
DateTime FromQtTime(const QDateTime& moment);

class QtClock : public Clock {
public:
    DateTime Now() override;
    double SecondsSinceMidnight() override;
    void Schedule(Ticker& ticker) override;

private:
    void Tick(Ticker& ticker);

    std::map<Ticker*, std::unique_ptr<QTimer>> ticking_;
};

}  // namespace vatro
