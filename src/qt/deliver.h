// SPDX-License-Identifier: MIT
//
// How what happens in Qt enters the program: every signal and filtered event goes through Deliver, so that no exception
// passes Qt's frames and the loops that wait inside an event see at once that they are over.
#pragma once

#include <QEventLoop>
#include <functional>

namespace vatro {

/// Runs one event to its end. The form and the control that it belongs to may be gone afterwards.
void Deliver(const std::function<void()>& event);

/// What is to be done whenever the outermost event has come to its end: then no handler, box, dialogue or modal form is open.
void SetAfterHandlers(std::function<void()> what);

/// Waits inside an event, with all events delivered, for an open modal form or box.
class WaitLoop {
public:
    explicit WaitLoop(std::function<bool()> over) : over_(std::move(over)) {}
    /// Returns when `over` holds or the program is ending.
    void Run();
    /// Leaves every loop that is over.
    static void Look();

private:
    bool Over() const;

    std::function<bool()> over_;
    QEventLoop loop_;
};

}  // namespace vatro
