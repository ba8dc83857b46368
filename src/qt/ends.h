// SPDX-License-Identifier: MIT
//
// The ends that come from outside: a signal of the system, the end of the session, a lost screen.
//
// A signal (SIGTERM, SIGINT, SIGHUP; on Windows the closed console) and the session's end close the program as its user would
// with Alt+F4: open boxes are answered with "Nej" or "OK", modal forms close by their frame, then the main form does.
// When the screen is lost, an X server or a Wayland compositor, Qt ends the process from within; the settings are stored on its way
// out, without Qt.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

namespace vatro {

class DiskSettings;

/// Tells of the signals as long as it lives. ends_posix.cpp and ends_windows.cpp have it. One at a time.
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

/// One at a time, on the thread of the program, as long as the services are installed.
class Ends : public QObject {
    Q_OBJECT

public:
    /// `settings` is what the logic stores in.
    explicit Ends(DiskSettings& settings);
    ~Ends() override;

    /// Closes the program; returns at once, it takes some turns of the event loop.
    void Close();
    /// Somebody outside has asked for the end: nobody is at the screen to read a message.
    bool Asked() const { return asked_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void CloseNext();

    bool asked_ = false;
    EndSignals signals_;
};

}  // namespace vatro
