// SPDX-License-Identifier: MIT
//
// The desktop's sound thread. It is a QThread, because Qt Multimedia needs an event loop.
#pragma once

#include <QThread>

#include "sound_thread.h"

namespace vatro {

class QtSoundLoop : public SoundLoop {
public:
    void Start(std::function<void()> atEnd) override;
    void Queue(std::function<void()> task) override;
    bool End(std::chrono::milliseconds patience) override;

private:
    class Home;

    std::unique_ptr<QThread> thread_;
    /// The object that tasks are posted to. It lives on the thread and is deleted with it.
    Home* home_ = nullptr;
};

}  // namespace vatro
