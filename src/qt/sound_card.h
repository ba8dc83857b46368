// SPDX-License-Identifier: MIT
//
// The desktop's sound card, through Qt Multimedia, which is loaded when the card is opened for the first time.
//
// All calls to the sound system are made on a separate thread (platform/sound_thread.h), so that a busy program does not interrupt the
// sound and a slow sound system does not block the program. Calls from the program return at once; notifications come back as events on
// the program's thread.
#pragma once

#include <QObject>
#include <deque>
#include <map>
#include <memory>

#include "sound.h"
#include "sound_buffers.h"
#include "sound_module.h"

namespace vatro {

class QtSound : public Sound {
public:
    /// `load` loads the module or returns null; it is called on the sound thread.
    explicit QtSound(std::function<SoundModule*()> load = LoadSoundModule);
    /// Stops all sound. Buffers and devices may outlive this object; they are silent from then on.
    ~QtSound() override;

    SoundEvent CreateEvent(std::function<void(SoundEvent)> callback) override;
    void DestroyEvent(SoundEvent event) override;
    std::unique_ptr<SoundDevice> CreateDevice() override;

private:
    void RunSignals();

    std::function<SoundModule*()> load_;
    SoundEvent lastEvent_ = 0;
    std::map<SoundEvent, std::function<void(SoundEvent)>> events_;
    std::deque<SoundSignal> signals_;
    /// Receives the signals posted by the sound thread; signals that have not run are deleted with it.
    std::unique_ptr<QObject> bell_;
    std::shared_ptr<SoundThread> thread_;
};

}  // namespace vatro
