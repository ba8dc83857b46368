// SPDX-License-Identifier: MIT
#include "sound_card.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QTimer>

#include "deliver.h"
#include "errors.h"
#include "qt_front.h"
#include "sound_player.h"

namespace vatro {

namespace {

/// Until the sound system has answered, in milliseconds; a machine whose sound does not answer has none.
constexpr int kPatience = 3000;

}  // namespace

/// The program's end of a buffer. Its player lives on the audio thread.
class QtSound::Buffer : public SoundBuffer {
public:
    Buffer(std::shared_ptr<SoundThread> thread, const std::shared_ptr<SoundRing>& ring, int samplesPerSecond,
           const std::function<void(const Signal&)>& signalled)
        : thread_(std::move(thread)), ring_(ring) {
        player_ = thread_->AddPlayer([ring, samplesPerSecond, signalled, present = std::shared_ptr<const unsigned>(run_)] {
            return std::make_unique<SoundPlayer>(ring, samplesPerSecond, [signalled, present](SoundEvent event, unsigned run) {
                signalled({event, run, present});
            });
        });
    }
    ~Buffer() override {
        ++*run_;
        thread_->RemovePlayer(player_);
    }
    Buffer(const Buffer&) = delete;
    Buffer& operator=(const Buffer&) = delete;

    void SetNotificationPositions(std::span<const PositionNotification> positions) override {
        thread_->Ask(player_,
                     [wanted = std::vector(positions.begin(), positions.end())](SoundPlayer& player) { player.SetPositions(wanted); });
    }
    void Write(int first, std::span<const std::int16_t> samples) override { ring_->Write(first, samples); }
    void SetCurrentPosition(int sample) override {
        thread_->Ask(player_, [sample, run = ++*run_](SoundPlayer& player) { player.MoveTo(sample, run); });
    }
    void PlayLooping() override {
        QElapsedTimer asked;
        asked.start();
        thread_->Ask(player_, [asked](SoundPlayer& player) { player.Play(asked); });
    }
    void Stop() override {
        thread_->Ask(player_, [run = ++*run_](SoundPlayer& player) { player.Stop(run); });
    }

private:
    std::shared_ptr<SoundThread> thread_;
    std::shared_ptr<SoundRing> ring_;
    int player_ = 0;
    /// Another number after each Stop and each move; used on the program's thread alone.
    std::shared_ptr<unsigned> run_ = std::make_shared<unsigned>(0);
};

class QtSound::Device : public SoundDevice {
public:
    Device(std::shared_ptr<SoundThread> thread, std::function<void(const Signal&)> signalled)
        : thread_(std::move(thread)), signalled_(std::move(signalled)) {}
    std::unique_ptr<SoundBuffer> CreateBuffer(const SoundFormat& format) override {
        if (format.samplesPerSecond <= 0 || format.samples <= 0) throw RunTimeError(Failure::InvalidCall);
        auto ring = std::make_shared<SoundRing>(format.samples);
        return std::make_unique<Buffer>(thread_, ring, format.samplesPerSecond, signalled_);
    }

private:
    std::shared_ptr<SoundThread> thread_;
    std::function<void(const Signal&)> signalled_;
};

QtSound::QtSound() : bell_(std::make_unique<QObject>()), thread_(std::make_shared<SoundThread>()) {}

QtSound::~QtSound() {
    // A thread that hangs in the sound system may ring yet.
    if (!thread_->End()) static_cast<void>(bell_.release());
}

SoundEvent QtSound::CreateEvent(std::function<void(SoundEvent)> callback) {
    events_.emplace(++lastEvent_, std::move(callback));
    return lastEvent_;
}

void QtSound::DestroyEvent(SoundEvent event) {
    events_.erase(event);
}

std::unique_ptr<SoundDevice> QtSound::CreateDevice() {
    const auto there = std::make_shared<bool>(false);
    const bool answered = thread_->Await([there] { *there = !QMediaDevices::defaultAudioOutput().isNull(); }, kPatience);
    if (!answered || !*there) throw RunTimeError(Failure::DeviceUnavailable);
    return std::make_unique<Device>(thread_, [this, bell = bell_.get()](const Signal& signal) {
        QMetaObject::invokeMethod(
            bell,
            [this, signal] {
                signals_.push_back(signal);
                RunSignals();
            },
            Qt::QueuedConnection);
    });
}

void QtSound::RunSignals() {
    while (!signals_.empty()) {
        if (TicksHeld()) {
            QTimer::singleShot(1, bell_.get(), [this] { RunSignals(); });
            return;
        }
        const Signal signal = signals_.front();
        signals_.pop_front();
        const auto found = events_.find(signal.event);
        if (found == events_.end() || signal.run != *signal.presentRun) continue;
        // The callback may destroy its own event.
        const auto callback = found->second;
        Deliver([&] { callback(signal.event); });
    }
}

}  // namespace vatro
