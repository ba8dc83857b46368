// SPDX-License-Identifier: MIT
//
// The thread on which all calls to the sound system are made, and the players that live on it.
//
// Everything in the sound system is created and used on this thread only. The connection to the sound system belongs to the
// thread that first created it, and breaks if the sound system disappears while another thread uses it. The thread itself is a
// port (SoundLoop), because it must also wait for events of the sound system; on the desktop it is a thread of the toolkit.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace vatro {

class SoundPlayer;

/// A thread that runs posted tasks. All members are called on the program's thread only.
class SoundLoop {
public:
    /// Destroy the loop only after End, or if Start was never called.
    virtual ~SoundLoop() = default;
    /// Starts the thread; call once. `atEnd` runs on the thread after all other tasks, and no posted task runs after it.
    virtual void Start(std::function<void()> atEnd) = 0;
    /// Runs the task on the thread; tasks run in the order of the calls. Call only between Start and End.
    virtual void Queue(std::function<void()> task) = 0;
    /// Ends the thread once its current task is done; tasks that have not started are dropped. Call once. Returns false if the
    /// thread has not ended within `patience`; it is then abandoned.
    virtual bool End(std::chrono::milliseconds patience) = 0;
};

/// The sound thread and the players on it. The thread starts with the first Await or AddPlayer. All members are called on the program's
/// thread only.
class SoundThread {
public:
    explicit SoundThread(std::unique_ptr<SoundLoop> loop);
    /// Calls End.
    ~SoundThread();
    SoundThread(const SoundThread&) = delete;
    SoundThread& operator=(const SoundThread&) = delete;

    /// Runs the task on the sound thread and waits for it; false if it has not finished within `patience`.
    bool Await(std::function<void()> task, std::chrono::milliseconds patience);
    /// Creates a player on the sound thread. Returns its number, which is never 0.
    int AddPlayer(std::function<std::unique_ptr<SoundPlayer>()> make);
    /// Runs the task with this player on the sound thread, in the order of the calls. Does nothing if the player no longer
    /// exists.
    void Ask(int player, std::function<void(SoundPlayer&)> task);
    /// Destroys the player on the sound thread, after the tasks posted before.
    void RemovePlayer(int player);
    /// Destroys all players; later tasks are ignored. Returns false if the thread hangs in the sound system and had to be
    /// abandoned.
    bool End();

private:
    struct Players;

    void Start();
    void Queue(std::function<void()> task);

    std::unique_ptr<SoundLoop> loop_;
    /// Accessed on the sound thread only. Other owners keep it alive but never look inside.
    std::shared_ptr<Players> players_;
    int lastPlayer_ = 0;
    /// The loop runs from the first task until End.
    bool started_ = false;
    bool ended_ = false;
};

}  // namespace vatro
