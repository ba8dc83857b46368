// SPDX-License-Identifier: MIT
//
// Plays one looping buffer. Lives on the sound thread; the program's samples arrive through a SoundRing.
//
// Samples are handed to the sound system a little ahead of what is heard, but notifications follow what is heard. An underrun
// delays the sound and has no other effect. If the device disappears during playback, the player switches to the current default
// device as soon as there is one. Until then it keeps counting time silently, so that a Morse text still comes to its end.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>

#include "sound_course.h"
#include "sound_ring.h"

namespace vatro {

/// What a player needs from the sound system. Created, used and destroyed on the sound thread; destroying it stops the sound.
class SoundStream {
public:
    virtual ~SoundStream() = default;
    /// Opens the default device for 16-bit mono samples; false if there is none. The caller must have dropped a stream that is
    /// open.
    virtual bool Open(int samplesPerSecond) = 0;
    /// Stops the sound at once and closes the stream. Does nothing if it is not open.
    virtual void Drop() = 0;
    /// True from a successful Open to the next Drop.
    virtual bool IsOpen() const = 0;
    /// How many samples the stream accepts now, or nothing if the device has disappeared. The stream must be open.
    virtual std::optional<std::size_t> Room() = 0;
    /// Writes samples and returns how many were accepted, or nothing if the device has disappeared. The stream must be open.
    virtual std::optional<std::size_t> Write(std::span<const std::int16_t> samples) = 0;
    /// How much sound has been heard since Open, in microseconds. The stream must be open.
    virtual long long HeardMicroseconds() const = 0;
    /// Calls `feed` soon, and each time again when the time that it has returned is over, until StopFeeding.
    virtual void StartFeeding(std::function<std::chrono::milliseconds()> feed) = 0;
    virtual void StopFeeding() = 0;
    /// For the stream's log: how long after the program's request the first samples were handed over.
    virtual void TellStarted(std::chrono::nanoseconds sinceAsked) = 0;
    /// For the stream's log: the device disappeared during playback.
    virtual void TellGone() = 0;
};

/// Plays one buffer. Lives on the sound thread and is only called there. A run is the time between two calls of MoveTo or Stop;
/// the program numbers the runs, to recognise notifications that are out of date.
class SoundPlayer {
public:
    using Clock = std::chrono::steady_clock;

    /// `passed` is called on the sound thread when the audible sound has passed a notification position, with the event and the
    /// number of the run it belongs to.
    SoundPlayer(std::shared_ptr<SoundRing> ring, int samplesPerSecond, std::unique_ptr<SoundStream> stream,
                std::function<void(SoundEvent event, unsigned run)> passed);
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    /// Replaces the notifications set before.
    void SetPositions(std::span<const PositionNotification> positions) { course_.SetPositions(positions); }
    /// Continues at this sample and drops samples that were handed over but not heard yet. Starts the run with this number.
    void MoveTo(long long sample, unsigned run);
    /// Plays in a loop, starting at the current position. Does nothing if it is already playing. `asked` is when the program requested
    /// this; it is passed on to the stream's log.
    void Play(Clock::time_point asked);
    /// Stops at once; the position is kept. Starts the run with this number.
    void Stop(unsigned run);

private:
    void Begin(long long sample);
    /// Hands over as many samples as the sound system accepts; false if the device has disappeared.
    bool FillStream();
    /// Returns when it wants to be called again.
    std::chrono::milliseconds Feed();
    void TellPassings();
    /// How long until the next passing is heard, if nothing delays the sound.
    std::chrono::milliseconds UntilPassing() const;
    /// Number of samples heard since playback began. Without a device, the number that would have been heard in the time since then.
    long long Heard();
    /// How long playback has been running without a device.
    std::chrono::milliseconds Unheard() const;

    std::shared_ptr<SoundRing> ring_;
    int samplesPerSecond_;
    std::unique_ptr<SoundStream> stream_;
    std::function<void(SoundEvent, unsigned)> passed_;
    SoundCourse course_;
    unsigned run_ = 0;
    bool playing_ = false;
    /// Numbers of samples since playback began: those handed over, and the last result of Heard.
    long long handed_ = 0;
    long long heard_ = 0;
    /// When playback began, or when it continued without a device.
    Clock::time_point unheardSince_;
};

}  // namespace vatro
