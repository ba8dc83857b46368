// SPDX-License-Identifier: MIT
//
// Plays one looping buffer. Lives on the audio thread; what the program writes comes in through the ring.
//
// The sound system gets a little ahead of what is heard. Notifications go by what is heard. An underrun
// delays the sound and nothing else. A device that goes away while it plays is replaced by the default device of the
// moment as soon as there is one; meanwhile the play goes on unheard, in time, so that a text comes to its end.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

#include "sound_course.h"

class QAudioSink;
class QIODevice;

namespace vatro {

/// The samples of a looping buffer, between the thread that fills it and the one that plays it.
class SoundRing {
public:
    explicit SoundRing(int samples) : samples_(static_cast<std::size_t>(samples)) {}
    long long Size() const { return static_cast<long long>(samples_.size()); }
    /// As SoundBuffer::Write.
    void Write(int first, std::span<const std::int16_t> samples);
    /// Copies from this sample on, round at the end.
    void Read(std::size_t from, std::span<std::int16_t> to) const;

private:
    mutable std::mutex mutex_;
    std::vector<std::int16_t> samples_;
};

class SoundPlayer : public QObject {
    Q_OBJECT

public:
    /// `passed` is called on the audio thread when a sample tied to an event has been heard, with the run it belongs to.
    SoundPlayer(std::shared_ptr<SoundRing> ring, int samplesPerSecond, std::function<void(SoundEvent event, unsigned run)> passed);
    ~SoundPlayer() override;

    void SetPositions(std::span<const PositionNotification> positions) { course_.SetPositions(positions); }
    /// Goes to this sample; what is under way to the ear is dropped. A run begins.
    void MoveTo(long long sample, unsigned run);
    /// `asked` has been running since the program asked for it.
    void Play(const QElapsedTimer& asked);
    void Stop(unsigned run);

private:
    void Begin(long long sample);
    bool OpenSink();
    void DropSink();
    /// Hands over as many samples as the sound system takes.
    bool FillSink();
    void Feed();
    void TellPassings();
    /// Samples heard since the play began.
    long long Heard();

    std::shared_ptr<SoundRing> ring_;
    int samplesPerSecond_;
    std::function<void(SoundEvent, unsigned)> passed_;
    SoundCourse course_;
    unsigned run_ = 0;
    bool playing_ = false;
    /// Handed over since the play began, and heard of it as far as is known.
    long long handed_ = 0;
    long long heard_ = 0;
    /// Nothing while there is no device to play on.
    std::unique_ptr<QAudioSink> sink_;
    QIODevice* input_ = nullptr;
    /// How long the play has gone on unheard.
    QElapsedTimer unheard_;
    QTimer feeding_;
};

}  // namespace vatro
