// SPDX-License-Identifier: MIT
//
// A sound card whose buffers are played on the sound thread. What the program calls returns at once; notifications come back
// as signals.
#pragma once

#include <functional>
#include <memory>

#include "sound.h"
#include "sound_player.h"
#include "sound_thread.h"

namespace vatro {

/// An event that has been signalled on the sound thread.
struct SoundSignal {
    SoundEvent event = 0;
    unsigned run = 0;
    /// The run of the buffer now; looked at on the program's thread alone.
    std::shared_ptr<const unsigned> presentRun;

    /// Whether the buffer has been stopped, moved or destroyed since. To be asked on the program's thread.
    bool OutOfDate() const { return run != *presentRun; }
};

/// All of it is called on the program's thread alone. Buffers may outlive it.
class ThreadedSoundDevice : public SoundDevice {
public:
    /// `makeStream` and `signalled` are called on the sound thread, also after the device and its buffers have gone.
    ThreadedSoundDevice(std::shared_ptr<SoundThread> thread, std::function<std::unique_ptr<SoundStream>()> makeStream,
                        std::function<void(const SoundSignal&)> signalled);
    std::unique_ptr<SoundBuffer> CreateBuffer(const SoundFormat& format) override;

private:
    class Buffer;

    std::shared_ptr<SoundThread> thread_;
    std::function<std::unique_ptr<SoundStream>()> makeStream_;
    std::function<void(const SoundSignal&)> signalled_;
};

}  // namespace vatro
