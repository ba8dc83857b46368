// SPDX-License-Identifier: MIT
//
// The thread on which the sound system is spoken to, and the players that live there.
//
// Everything of Qt Multimedia is created and used there and nowhere else: its link to the sound system belongs to the
// thread that has made it first, and falls apart under another one when the sound system goes away.
#pragma once

#include <QThread>
#include <functional>
#include <memory>

namespace vatro {

class SoundPlayer;

class SoundThread {
public:
    SoundThread() = default;
    /// Ends it.
    ~SoundThread();
    SoundThread(const SoundThread&) = delete;
    SoundThread& operator=(const SoundThread&) = delete;

    /// Has it done there and waits for it; false if it has not been done after so many milliseconds.
    bool Await(std::function<void()> task, int milliseconds);
    /// Has a player made there. Its number is never 0.
    int AddPlayer(std::function<std::unique_ptr<SoundPlayer>()> make);
    /// Has it done there, in the order asked; nothing if there is no such player any more.
    void Ask(int player, std::function<void(SoundPlayer&)> task);
    void RemovePlayer(int player);
    /// All players go; nothing is done from now on. False if the thread hangs in the sound system and is left to itself.
    bool End();

private:
    class Home;

    void Start();
    void Queue(std::function<void()> task) const;

    /// Runs from the first task to End.
    std::unique_ptr<QThread> thread_;
    /// Lives on the thread and goes with it.
    Home* home_ = nullptr;
    int lastPlayer_ = 0;
    bool ended_ = false;
};

}  // namespace vatro
