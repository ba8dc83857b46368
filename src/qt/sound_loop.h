// SPDX-License-Identifier: MIT
//
// The sound thread of the desktop: one of Qt's, since Qt Multimedia wants an event loop there.
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
    /// What tasks are posted to. It lives on the thread and goes with it.
    Home* home_ = nullptr;
};

}  // namespace vatro
