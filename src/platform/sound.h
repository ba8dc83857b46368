// SPDX-License-Identifier: MIT
//
// What the program needs of a sound card: one looping buffer of 16-bit samples, one channel, that is refilled while it plays.
//
// The program writes into the buffer anywhere at any time. Samples of it are tied to events: when one of them has been played,
// its event runs on the program's thread, like every other event of the user. A refill that comes too late is not reported; the
// old samples are then heard once more. All places are counted in samples from the start of the buffer.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace vatro {

/// What a buffer is created with.
struct SoundFormat {
    int samplesPerSecond = 0;
    /// Length of the buffer.
    int samples = 0;
};

/// An event by its handle; 0 is none.
using SoundEvent = int;

/// The event that runs each time this sample has been played to its end.
struct PositionNotification {
    int sample = 0;
    SoundEvent event = 0;
};

/// A looping buffer. It falls silent when it is destroyed.
class SoundBuffer {
public:
    virtual ~SoundBuffer() = default;
    /// Replaces the notifications set before.
    virtual void SetNotificationPositions(std::span<const PositionNotification> positions) = 0;
    /// Puts the samples into the buffer, the first of them at `first`. Fails with 5 where they do not lie within the buffer.
    virtual void Write(int first, std::span<const std::int16_t> samples) = 0;
    /// The sample from which PlayLooping starts; a buffer that plays goes on from there at once. An event of the old position
    /// that has not run yet does not run any more.
    virtual void SetCurrentPosition(int sample) = 0;
    /// Plays round and round until Stop. A buffer that plays already goes on.
    virtual void PlayLooping() = 0;
    /// Silent at once, with no ramp. The position stays. An event that has not run yet does not run any more.
    virtual void Stop() = 0;
};

/// A sound card.
class SoundDevice {
public:
    virtual ~SoundDevice() = default;
    /// A silent buffer at position 0. Fails with 5 unless rate and length are above 0.
    virtual std::unique_ptr<SoundBuffer> CreateBuffer(const SoundFormat& format) = 0;
};

/// The sound system.
class Sound {
public:
    virtual ~Sound() = default;
    /// The callback gets the handle of its event, as an event of its own on the program's thread.
    virtual SoundEvent CreateEvent(std::function<void(SoundEvent)> callback) = 0;
    /// The event does not run any more, even if it has been signalled.
    virtual void DestroyEvent(SoundEvent event) = 0;
    /// The default device. Fails with Failure::DeviceUnavailable when there is no sound card.
    virtual std::unique_ptr<SoundDevice> CreateDevice() = 0;
};

}  // namespace vatro
