// SPDX-License-Identifier: MIT
//
// A sound card whose buffers are played on the sound thread. Calls from the program return at once; notifications come back as
// signals.
#pragma once

#include <functional>
#include <memory>

#include "sound.h"
#include "sound_player.h"
#include "sound_thread.h"

namespace vatro {

/// A signal from the sound thread that an event is due.
struct SoundSignal {
    SoundEvent event = 0;
    /// The number of the run that the event belongs to; see SoundPlayer.
    unsigned run = 0;
    /// The buffer's current run number. Only read on the program's thread.
    std::shared_ptr<const unsigned> presentRun;

    /// Whether the buffer has been stopped, moved or destroyed since the signal was sent. Call only on the program's thread.
    bool OutOfDate() const { return run != *presentRun; }
};

/// A device whose buffers play on `thread`. All members are called on the program's thread only. Buffers may outlive the device.
class ThreadedSoundDevice : public SoundDevice {
public:
    /// `makeStream` makes the stream of one buffer; `signalled` receives a signal for each event that is due. Both are called on the
    /// sound thread, even after the device and its buffers have been destroyed.
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
