// SPDX-License-Identifier: MIT
//
// Plays one looping buffer. Lives on the sound thread; what the program writes comes in through the ring.
//
// The sound system gets a little ahead of what is heard. Notifications go by what is heard. An underrun
// delays the sound and nothing else. A device that goes away while it plays is replaced by the default device of the
// moment as soon as there is one; meanwhile the play goes on unheard, in time, so that a text comes to its end.
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

/// What a player asks of the sound system. Made, used and destroyed on the sound thread; falls silent when it goes.
class SoundStream {
public:
    virtual ~SoundStream() = default;
    /// Opens the default device for samples of 16 bits of one channel; false if there is none. What is still open has been
    /// dropped before.
    virtual bool Open(int samplesPerSecond) = 0;
    /// Silent at once. Nothing happens if it is not open.
    virtual void Drop() = 0;
    /// From an Open that succeeded to the next Drop.
    virtual bool IsOpen() const = 0;
    /// How many samples it takes now, or nothing if the device has gone. It is open.
    virtual std::optional<std::size_t> Room() = 0;
    /// How many of these it has taken, or nothing if the device has gone. It is open.
    virtual std::optional<std::size_t> Write(std::span<const std::int16_t> samples) = 0;
    /// How much has been heard since it was opened, in microseconds. It is open.
    virtual long long HeardMicroseconds() const = 0;
    /// Calls `feed` every few milliseconds until StopFeeding.
    virtual void StartFeeding(std::function<void()> feed) = 0;
    virtual void StopFeeding() = 0;
    /// For its log: the first samples have been handed over so long after the program asked for them.
    virtual void TellStarted(std::chrono::nanoseconds sinceAsked) = 0;
    /// For its log: the device has gone while it played.
    virtual void TellGone() = 0;
};

class SoundPlayer {
public:
    using Clock = std::chrono::steady_clock;

    /// `passed` is called on the sound thread when the sound heard has passed an offset, with the run it belongs to.
    SoundPlayer(std::shared_ptr<SoundRing> ring, int samplesPerSecond, std::unique_ptr<SoundStream> stream,
                std::function<void(SoundEvent event, unsigned run)> passed);
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;

    void SetPositions(std::span<const PositionNotification> positions) { course_.SetPositions(positions); }
    /// Goes to this sample; what is under way to the ear is dropped. A run begins.
    void MoveTo(long long sample, unsigned run);
    /// `asked` is when the program asked for it.
    void Play(Clock::time_point asked);
    void Stop(unsigned run);

private:
    void Begin(long long sample);
    /// Hands over as many samples as the sound system takes; false if the device has gone.
    bool FillStream();
    void Feed();
    void TellPassings();
    /// Samples heard since the play began.
    long long Heard();
    /// How long the play has gone on unheard.
    std::chrono::milliseconds Unheard() const;

    std::shared_ptr<SoundRing> ring_;
    int samplesPerSecond_;
    std::unique_ptr<SoundStream> stream_;
    std::function<void(SoundEvent, unsigned)> passed_;
    SoundCourse course_;
    unsigned run_ = 0;
    bool playing_ = false;
    /// Handed over since the play began, and heard of it as far as is known.
    long long handed_ = 0;
    long long heard_ = 0;
    /// When the play began, or went on without a device.
    Clock::time_point unheardSince_;
};

}  // namespace vatro
