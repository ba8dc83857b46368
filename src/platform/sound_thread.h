// SPDX-License-Identifier: MIT
//
// The thread on which the sound system is spoken to, and the players that live there.
//
// Everything of the sound system is created and used there and nowhere else: its link belongs to the thread that has made it
// first, and falls apart under another one when the sound system goes away. The thread itself is a port: it has to wait for the
// sound system too, so it is the toolkit's on the desktop.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace vatro {

class SoundPlayer;

/// A thread that does what is posted to it. All of it is called on the program's thread alone.
class SoundLoop {
public:
    /// The thread has ended, or is left to itself.
    virtual ~SoundLoop() = default;
    /// Begins the thread; once. `atEnd` runs there behind everything else, and nothing that was posted runs after it.
    virtual void Start(std::function<void()> atEnd) = 0;
    /// Has it done there, in the order of the calls. It is called between Start and End alone.
    virtual void Queue(std::function<void()> task) = 0;
    /// Ends the thread as soon as the task under way is done; what has not begun by then is not done. Once. False if the thread
    /// hangs for so long; it is left to itself then.
    virtual bool End(std::chrono::milliseconds patience) = 0;
};

/// Used on the program's thread alone.
class SoundThread {
public:
    explicit SoundThread(std::unique_ptr<SoundLoop> loop);
    /// Ends it.
    ~SoundThread();
    SoundThread(const SoundThread&) = delete;
    SoundThread& operator=(const SoundThread&) = delete;

    /// Has it done there and waits for it; false if it has not been done in this time.
    bool Await(std::function<void()> task, std::chrono::milliseconds patience);
    /// Has a player made there. Its number is never 0.
    int AddPlayer(std::function<std::unique_ptr<SoundPlayer>()> make);
    /// Has it done there, in the order asked; nothing if there is no such player any more.
    void Ask(int player, std::function<void(SoundPlayer&)> task);
    void RemovePlayer(int player);
    /// All players go; nothing is done from now on. False if the thread hangs in the sound system and is left to itself.
    bool End();

private:
    struct Players;

    void Start();
    void Queue(std::function<void()> task);

    std::unique_ptr<SoundLoop> loop_;
    /// Touched on the thread alone; who holds it besides does not look into it.
    std::shared_ptr<Players> players_;
    int lastPlayer_ = 0;
    /// The loop runs from the first task to End.
    bool started_ = false;
    bool ended_ = false;
};

}  // namespace vatro
