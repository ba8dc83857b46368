// SPDX-License-Identifier: MIT
//
// What the logic needs of a sound card: one looping buffer of samples that is refilled while it plays.
//
// The program writes into the buffer at any offset at any time. Two or more offsets of it are tied to events; when the play
// position passes one, its event runs on the program's thread like every other event of the user. Nothing is ever reported
// about a refill that comes too late: the old samples are then heard once more.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>

namespace vatro {

/// How samples lie in a buffer.
struct WaveFormat {
    /// 1: PCM.
    int formatTag = 0;
    int channels = 0;
    int samplesPerSecond = 0;
    int bytesPerSecond = 0;
    /// Bytes of one sample of all channels.
    int blockAlign = 0;
    int bitsPerSample = 0;
    /// Bytes behind this record.
    int extraSize = 0;
};

/// What a buffer is created with.
struct SoundBufferDescription {
    /// Position notification and exact play position, which every buffer of this interface has.
    int flags = 0;
    int bytes = 0;
};

/// An event by its handle; 0 is none.
using SoundEvent = int;

/// The event that runs when the play position passes the byte offset.
struct PositionNotification {
    int offset = 0;
    SoundEvent event = 0;
};

/// A looping buffer. It falls silent when it goes.
class SoundBuffer {
public:
    virtual ~SoundBuffer() = default;
    virtual void SetNotificationPositions(std::span<const PositionNotification> positions) = 0;
    /// Takes `size` bytes over from the same offset of `image`, a picture of the whole buffer.
    virtual void Write(int startByte, int size, std::span<const std::int16_t> image) = 0;
    /// Where Play begins, or goes on at once if it plays; a byte offset. An event of the old position that has not run yet
    /// does not run any more.
    virtual void SetCurrentPosition(int offset) = 0;
    /// Plays round and round until Stop. One that plays goes on.
    virtual void PlayLooping() = 0;
    /// Silent at once, with no ramp. The position stays. An event that has not run yet does not run any more.
    virtual void Stop() = 0;
};

/// A sound card.
class SoundDevice {
public:
    virtual ~SoundDevice() = default;
    /// Silent, at position 0. Fails with 5 if the device cannot play the format.
    virtual std::unique_ptr<SoundBuffer> CreateBuffer(const SoundBufferDescription& description, const WaveFormat& format) = 0;
};

/// The sound system.
class Sound {
public:
    virtual ~Sound() = default;
    /// The callback gets the handle of its event, as an event of its own on the program's thread.
    virtual SoundEvent CreateEvent(std::function<void(SoundEvent)> callback) = 0;
    /// It does not run any more, even if it has been signalled.
    virtual void DestroyEvent(SoundEvent event) = 0;
    /// The default device. Fails with Failure::DeviceUnavailable when there is no sound card.
    virtual std::unique_ptr<SoundDevice> CreateDevice() = 0;
};

}  // namespace vatro
