// SPDX-License-Identifier: MIT
#include "scene_sound.h"

#include <algorithm>
#include <utility>

#include "errors.h"
#include "program.h"
#include "sound_course.h"

namespace vatro {

namespace {

constexpr SceneTime kMillisecondsPerSecond = 1000;

}  // namespace

/// Counts the samples played since playback began.
class SceneSound::Buffer : public SoundBuffer {
public:
    Buffer(SceneSound& sound, const SoundFormat& format)
        : sound_(sound),
          samplesPerSecond_(format.samplesPerSecond),
          samples_(static_cast<std::size_t>(format.samples)),
          course_(format.samples) {}
    ~Buffer() override { Stop(); }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;

    void SetNotificationPositions(std::span<const PositionNotification> positions) override { course_.SetPositions(positions); }

    void Write(int first, std::span<const std::int16_t> samples) override {
        if (first < 0 || static_cast<std::size_t>(first) + samples.size() > samples_.size()) throw RunTimeError(Failure::InvalidCall);
        CatchUp();
        std::ranges::copy(samples, samples_.begin() + first);
    }

    void SetCurrentPosition(int sample) override {
        CatchUp();
        Begin(sample);
    }

    void PlayLooping() override {
        if (Playing()) return;
        Begin(static_cast<long long>(course_.At(played_)));
        sound_.playing_.push_back(this);
    }

    void Stop() override {
        CatchUp();
        std::erase(sound_.playing_, this);
    }

    /// Plays up to the present moment.
    void CatchUp() {
        if (!Playing()) return;
        const long long due = (sound_.clock_.Passed() - began_) * samplesPerSecond_ / kMillisecondsPerSecond;
        for (; played_ < due; ++played_) sound_.heard_.push_back(samples_[course_.At(played_)]);
    }

    /// When the next sample that has an event will have been played, and the event.
    std::optional<std::pair<SceneTime, SoundEvent>> Next() const {
        const auto passing = course_.Next();
        if (!passing) return std::nullopt;
        const SceneTime due = (passing->played * kMillisecondsPerSecond + samplesPerSecond_ - 1) / samplesPerSecond_;
        return std::pair{began_ + due, passing->event};
    }

    /// The event returned by Next is being delivered.
    void Pass() { course_.Tell(*course_.Next()); }

private:
    bool Playing() const { return std::ranges::find(sound_.playing_, this) != sound_.playing_.end(); }
    void Begin(long long sample) {
        course_.Begin(sample);
        played_ = 0;
        began_ = sound_.clock_.Passed();
    }

    SceneSound& sound_;
    long long samplesPerSecond_;
    std::vector<std::int16_t> samples_;
    SoundCourse course_;
    /// When playback began, and how many samples have been played since.
    SceneTime began_ = 0;
    long long played_ = 0;
};

class SceneSound::Device : public SoundDevice {
public:
    explicit Device(SceneSound& sound) : sound_(sound) {}
    std::unique_ptr<SoundBuffer> CreateBuffer(const SoundFormat& format) override {
        if (format.samplesPerSecond <= 0 || format.samples <= 0) throw RunTimeError(Failure::InvalidCall);
        return std::make_unique<Buffer>(sound_, format);
    }

private:
    SceneSound& sound_;
};

std::vector<std::int16_t> SceneSound::TakeHeard() {
    for (Buffer* buffer : playing_) buffer->CatchUp();
    return std::exchange(heard_, {});
}

SoundEvent SceneSound::CreateEvent(std::function<void(SoundEvent)> callback) {
    events_.emplace(++lastEvent_, std::move(callback));
    return lastEvent_;
}

std::unique_ptr<SoundDevice> SceneSound::CreateDevice() {
    if (!card_) throw RunTimeError(Failure::DeviceUnavailable);
    return std::make_unique<Device>(*this);
}

std::optional<SceneTime> SceneSound::NextDue() const {
    std::optional<SceneTime> due;
    for (const Buffer* buffer : playing_) {
        const auto next = buffer->Next();
        if (next && (!due || next->first < *due)) due = next->first;
    }
    return due;
}

void SceneSound::DeliverNext() {
    const auto due = NextDue();
    if (!due) return;
    const auto found = std::ranges::find_if(playing_, [&](const Buffer* buffer) {
        const auto next = buffer->Next();
        return next && next->first == *due;
    });
    Buffer& buffer = **found;
    buffer.CatchUp();
    const SoundEvent event = buffer.Next()->second;
    buffer.Pass();
    const auto callback = events_.find(event);
    if (callback == events_.end()) return;
    // Copy the callback: it may destroy its own event.
    const auto run = callback->second;
    Dispatch([&] { run(event); });
}

}  // namespace vatro
