// SPDX-License-Identifier: MIT
//
// Tells moves of a window by its user from those of the window manager. The manager places a window that is shown, maximised or restored,
// in several steps, of which each looks like a move by the user; and some managers take the first steps before they announce the change.
#pragma once

#include <QTimer>
#include <functional>

namespace vatro {

class Settling {
public:
    /// `rested`: called when the window has come to rest, with what has moved it since the last rest: the manager or only the user.
    explicit Settling(std::function<void(bool byManager)> rested);

    /// The window has been shown, or its state has changed, so the manager moves it now.
    void Begin();
    /// The window has been moved or resized.
    void Moved();
    /// Whether moves are those of the manager.
    bool Active() const { return active_; }
    /// Whether moves are those of the user, but so recent that they are the manager's if it changes the state of the window now.
    bool Doubtful() const { return !active_ && timer_.isActive(); }

private:
    void Rest();

    std::function<void(bool)> rested_;
    bool active_ = false;
    QTimer timer_;
};

}  // namespace vatro
