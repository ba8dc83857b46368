// SPDX-License-Identifier: MIT
//
// The sound card of the desktop, by Qt Multimedia.
//
// The sound system is spoken to on a thread of its own (platform/sound_thread.h), so that a busy program does not make the sound
// stutter and a slow sound system does not hold up the program. What the program calls returns at once; notifications come
// back as events of the program's thread.
#pragma once

#include <QObject>
#include <deque>
#include <map>
#include <memory>

#include "sound.h"
#include "sound_buffers.h"

namespace vatro {

class QtSound : public Sound {
public:
    QtSound();
    /// The sound ends. Buffers and devices may outlive it, and are silent then.
    ~QtSound() override;

    SoundEvent CreateEvent(std::function<void(SoundEvent)> callback) override;
    void DestroyEvent(SoundEvent event) override;
    std::unique_ptr<SoundDevice> CreateDevice() override;

private:
    void RunSignals();

    SoundEvent lastEvent_ = 0;
    std::map<SoundEvent, std::function<void(SoundEvent)>> events_;
    std::deque<SoundSignal> signals_;
    /// What the sound thread posts to; posts that have not run go with it.
    std::unique_ptr<QObject> bell_;
    std::shared_ptr<SoundThread> thread_;
};

}  // namespace vatro
