// SPDX-License-Identifier: MIT
#include "sound_buffers.h"

#include <utility>
#include <vector>

#include "errors.h"

namespace vatro {

/// The program's side of a buffer; its player lives on the sound thread.
class ThreadedSoundDevice::Buffer : public SoundBuffer {
public:
    Buffer(const ThreadedSoundDevice& device, const std::shared_ptr<SoundRing>& ring, int samplesPerSecond)
        : thread_(device.thread_), ring_(ring) {
        player_ = thread_->AddPlayer([ring, samplesPerSecond, makeStream = device.makeStream_, signalled = device.signalled_,
                                      present = std::shared_ptr<const unsigned>(run_)] {
            return std::make_unique<SoundPlayer>(ring, samplesPerSecond, makeStream(),
                                                 [signalled, present](SoundEvent event, unsigned run) {
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
        thread_->Ask(player_, [asked = SoundPlayer::Clock::now()](SoundPlayer& player) { player.Play(asked); });
    }
    void Stop() override {
        thread_->Ask(player_, [run = ++*run_](SoundPlayer& player) { player.Stop(run); });
    }

private:
    std::shared_ptr<SoundThread> thread_;
    std::shared_ptr<SoundRing> ring_;
    int player_ = 0;
    /// The number of the current run; see SoundPlayer. Only used on the program's thread.
    std::shared_ptr<unsigned> run_ = std::make_shared<unsigned>(0);
};

ThreadedSoundDevice::ThreadedSoundDevice(std::shared_ptr<SoundThread> thread, std::function<std::unique_ptr<SoundStream>()> makeStream,
                                         std::function<void(const SoundSignal&)> signalled)
    : thread_(std::move(thread)), makeStream_(std::move(makeStream)), signalled_(std::move(signalled)) {}

std::unique_ptr<SoundBuffer> ThreadedSoundDevice::CreateBuffer(const SoundFormat& format) {
    if (format.samplesPerSecond <= 0 || format.samples <= 0) throw RunTimeError(Failure::InvalidCall);
    return std::make_unique<Buffer>(*this, std::make_shared<SoundRing>(format.samples), format.samplesPerSecond);
}

}  // namespace vatro
