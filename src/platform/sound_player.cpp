// SPDX-License-Identifier: MIT
#include "sound_player.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace vatro {

namespace {

/// Pause between two attempts to find a device again.
constexpr std::chrono::milliseconds kRetry{1000};
/// Pause between two feeds, a third of what a stream is kept ahead.
constexpr std::chrono::milliseconds kFeed{50};
/// Pause before the next look at a passing that is due: the sound system tells its position in steps.
constexpr std::chrono::milliseconds kSoon{10};
constexpr long long kMillisecondsPerSecond = 1000;
constexpr long long kMicrosecondsPerSecond = 1'000'000;

}  // namespace

SoundPlayer::SoundPlayer(std::shared_ptr<SoundRing> ring, int samplesPerSecond, std::unique_ptr<SoundStream> stream,
                         std::function<void(SoundEvent, unsigned)> passed)
    : ring_(std::move(ring)),
      samplesPerSecond_(samplesPerSecond),
      stream_(std::move(stream)),
      passed_(std::move(passed)),
      course_(ring_->Size()) {}

void SoundPlayer::MoveTo(long long sample, unsigned run) {
    run_ = run;
    if (playing_) {
        stream_->Drop();
        Begin(sample);
        return;
    }
    course_.Begin(sample);
    heard_ = 0;
}

void SoundPlayer::Play(Clock::time_point asked) {
    if (playing_) return;
    playing_ = true;
    Begin(static_cast<long long>(course_.At(heard_)));
    stream_->StartFeeding([this] { return Feed(); });
    stream_->TellStarted(Clock::now() - asked);
}

void SoundPlayer::Stop(unsigned run) {
    run_ = run;
    if (!playing_) return;
    Heard();
    stream_->Drop();
    playing_ = false;
    stream_->StopFeeding();
}

void SoundPlayer::Begin(long long sample) {
    course_.Begin(sample);
    handed_ = 0;
    heard_ = 0;
    unheardSince_ = Clock::now();
    if (!stream_->Open(samplesPerSecond_) || !FillStream()) stream_->Drop();
}

bool SoundPlayer::FillStream() {
    const auto room = stream_->Room();
    if (!room) return false;
    std::vector<std::int16_t> samples(*room);
    if (samples.empty()) return true;
    ring_->Read(course_.At(handed_), samples);
    const auto written = stream_->Write(samples);
    if (!written) return false;
    handed_ += static_cast<long long>(*written);
    return true;
}

std::chrono::milliseconds SoundPlayer::Feed() {
    if (!stream_->IsOpen()) {
        TellPassings();
        if (Unheard() >= kRetry) Begin(static_cast<long long>(course_.At(Heard())));
    } else if (!FillStream()) {
        stream_->TellGone();
        TellPassings();
        const auto sample = static_cast<long long>(course_.At(heard_));
        stream_->Drop();
        course_.Begin(sample);
        heard_ = 0;
        unheardSince_ = Clock::now();
    } else {
        TellPassings();
    }
    return std::clamp(UntilPassing(), kSoon, kFeed);
}

long long SoundPlayer::Heard() {
    long long heard = 0;
    if (stream_->IsOpen())
        heard = std::min<long long>(stream_->HeardMicroseconds() * samplesPerSecond_ / kMicrosecondsPerSecond, handed_);
    else
        heard = static_cast<long long>(Unheard().count()) * samplesPerSecond_ / kMillisecondsPerSecond;
    heard_ = std::max(heard_, heard);
    return heard_;
}

std::chrono::milliseconds SoundPlayer::Unheard() const {
    return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - unheardSince_);
}

std::chrono::milliseconds SoundPlayer::UntilPassing() const {
    const auto next = course_.Next();
    if (!next) return kFeed;
    // Rounded up, so that the sample has been heard to its end by then.
    return std::chrono::milliseconds((next->played - heard_) * kMillisecondsPerSecond / samplesPerSecond_ + 1);
}

void SoundPlayer::TellPassings() {
    const long long heard = Heard();
    for (auto next = course_.Next(); next && next->played <= heard; next = course_.Next()) {
        course_.Tell(*next);
        passed_(next->event, run_);
    }
}

}  // namespace vatro
