// SPDX-License-Identifier: MIT
//
// How Qt's events enter the program. Every signal and filtered event goes through Deliver, so that no exception passes through Qt's
// code and loops that wait inside an event notice at once when they should end.
#pragma once

#include <QEventLoop>
#include <functional>

namespace vatro {

/// Runs one event to completion. Afterwards the form and control it belongs to may no longer exist.
void Deliver(const std::function<void()>& event);

/// As long as this object lives, `what` runs whenever the outermost event has ended; no handler, box, dialogue or modal form is open
/// then. The callbacks run in the order in which they were made.
class AfterHandlers {
public:
    explicit AfterHandlers(std::function<void()> what);
    ~AfterHandlers();
    AfterHandlers(const AfterHandlers&) = delete;
    AfterHandlers& operator=(const AfterHandlers&) = delete;

private:
    friend void Deliver(const std::function<void()>& event);
    std::function<void()> what_;
};

/// Waits inside an event for an open modal form or box, while all events are delivered.
class WaitLoop {
public:
    explicit WaitLoop(std::function<bool()> over) : over_(std::move(over)) {}
    /// Returns when `over` returns true or the program is ending.
    void Run();
    /// Lets every loop that is over return.
    static void Look();

private:
    bool Over() const;

    std::function<bool()> over_;
    QEventLoop loop_;
};

}  // namespace vatro
