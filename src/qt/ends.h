// SPDX-License-Identifier: MIT
//
// Ends of the program that are requested from outside: a signal of the system, the end of the session, or the loss of the screen.
//
// A signal (SIGTERM, SIGINT, SIGHUP; on Windows, closing the console) and the end of the session close the program as Alt+F4 would:
// open boxes are answered with "Nej" or "OK", modal forms are closed by their frame, and then the main form is closed. If the screen
// (an X server or a Wayland compositor) is lost, Qt ends the process itself; the settings are stored on the way out, without using Qt.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

namespace vatro {

class DiskSettings;

/// Reports signals of the system for as long as this object lives. Only one may exist at a time. Defined in ends_posix.cpp and
/// ends_windows.cpp.
class EndSignals {
public:
    /// `told` runs on the thread of `context`, in its event loop.
    EndSignals(QObject& context, std::function<void()> told);
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    struct System;
    std::unique_ptr<System> system_;
};

/// Only one may exist at a time. Must be used on the program's thread, while the services are installed.
class Ends : public QObject {
    Q_OBJECT

public:
    /// `settings` is the store that the logic writes to.
    explicit Ends(DiskSettings& settings);
    ~Ends() override;

    /// Starts to close the program and returns at once; closing takes several turns of the event loop.
    void Close();
    /// Whether the end was requested from outside, in which case nobody is at the screen to read a message.
    bool Asked() const { return asked_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CloseNext();

    bool asked_ = false;
    EndSignals signals_;
};

/// Call once after a library has registered exit handlers of its own, as the sound system does when it is first used: from then on the
/// settings are stored before those run. May be called on any thread.
void StoreBeforeExitHandlersSoFar();

}  // namespace vatro
