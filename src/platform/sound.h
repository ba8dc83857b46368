// SPDX-License-Identifier: MIT
//
// What the program needs from a sound card: a looping mono buffer of 16-bit samples that is refilled while it plays.
//
// The program may write anywhere into the buffer at any time. Events can be attached to samples of the buffer: once such a sample
// has been played, its event runs on the program's thread, like any user event. A late refill is not reported; the old samples
// are simply heard again. All positions are counted in samples from the start of the buffer.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace vatro {

/// How to create a buffer.
struct SoundFormat {
    int samplesPerSecond = 0;
    /// Length of the buffer in samples.
    int samples = 0;
};

/// Handle of an event; 0 means none.
using SoundEvent = int;

/// An event that runs each time this sample has been played to its end.
struct PositionNotification {
    int sample = 0;
    SoundEvent event = 0;
};

/// A looping buffer. Destroying it stops the sound.
class SoundBuffer {
public:
    virtual ~SoundBuffer() = default;
    /// Replaces any notifications set earlier.
    virtual void SetNotificationPositions(std::span<const PositionNotification> positions) = 0;
    /// Copies the samples into the buffer, starting at position `first`. Fails with 5 if they do not fit inside the buffer.
    virtual void Write(int first, std::span<const std::int16_t> samples) = 0;
    /// Sets the sample at which PlayLooping starts. A playing buffer jumps there at once. Events of the old position that have
    /// not run yet are cancelled.
    virtual void SetCurrentPosition(int sample) = 0;
    /// Plays in a loop until Stop. Does nothing if the buffer is already playing.
    virtual void PlayLooping() = 0;
    /// Stops at once, without fading out. The position is kept. Events that have not run yet are cancelled.
    virtual void Stop() = 0;
};

/// A sound card.
class SoundDevice {
public:
    virtual ~SoundDevice() = default;
    /// Creates a silent buffer at position 0. Fails with 5 unless the sample rate and the length are above 0.
    virtual std::unique_ptr<SoundBuffer> CreateBuffer(const SoundFormat& format) = 0;
};

/// The sound system.
class Sound {
public:
    virtual ~Sound() = default;
    /// Creates an event. The callback receives the handle and runs on the program's thread, as an event of its own.
    virtual SoundEvent CreateEvent(std::function<void(SoundEvent)> callback) = 0;
    /// Cancels the event: it no longer runs, even if it has already been signalled.
    virtual void DestroyEvent(SoundEvent event) = 0;
    /// Opens the default device. Fails with Failure::DeviceUnavailable if there is no sound card.
    virtual std::unique_ptr<SoundDevice> CreateDevice() = 0;
};

}  // namespace vatro
