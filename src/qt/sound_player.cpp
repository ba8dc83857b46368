// SPDX-License-Identifier: MIT
#include "sound_player.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QLoggingCategory>
#include <QMediaDevices>
#include <algorithm>

#include "errors.h"

namespace vatro {

namespace {

Q_LOGGING_CATEGORY(lcSound, "vatro.sound", QtWarningMsg)

/// What the sound system is ahead: long enough for a busy machine, short against the half second of a refill.
constexpr int kAheadMilliseconds = 150;
constexpr int kFeedMilliseconds = 10;
/// Between two tries to find a device again.
constexpr int kRetryMilliseconds = 1000;
constexpr long long kMillisecondsPerSecond = 1000;
constexpr long long kMicrosecondsPerSecond = 1'000'000;

}  // namespace

void SoundRing::Write(int first, std::span<const std::int16_t> samples) {
    if (first < 0 || static_cast<std::size_t>(first) + samples.size() > samples_.size()) throw RunTimeError(Failure::InvalidCall);
    const std::lock_guard lock(mutex_);
    std::ranges::copy(samples, samples_.begin() + first);
}

void SoundRing::Read(std::size_t from, std::span<std::int16_t> to) const {
    const std::lock_guard lock(mutex_);
    while (!to.empty()) {
        const std::size_t count = std::min(to.size(), samples_.size() - from);
        std::copy_n(samples_.begin() + static_cast<std::ptrdiff_t>(from), count, to.begin());
        to = to.subspan(count);
        from = 0;
    }
}

SoundPlayer::SoundPlayer(std::shared_ptr<SoundRing> ring, int samplesPerSecond, std::function<void(SoundEvent, unsigned)> passed)
    : ring_(std::move(ring)), samplesPerSecond_(samplesPerSecond), passed_(std::move(passed)), course_(ring_->Size()), feeding_(this) {
    feeding_.setTimerType(Qt::PreciseTimer);
    feeding_.setInterval(kFeedMilliseconds);
    connect(&feeding_, &QTimer::timeout, this, &SoundPlayer::Feed);
}

SoundPlayer::~SoundPlayer() {
    if (sink_ != nullptr) sink_->reset();
}

void SoundPlayer::MoveTo(long long sample, unsigned run) {
    run_ = run;
    if (playing_) {
        DropSink();
        Begin(sample);
        return;
    }
    course_.Begin(sample);
    heard_ = 0;
}

void SoundPlayer::Play(const QElapsedTimer& asked) {
    if (playing_) return;
    playing_ = true;
    Begin(static_cast<long long>(course_.At(heard_)));
    feeding_.start();
    qCDebug(lcSound) << "first samples after" << static_cast<double>(asked.nsecsElapsed()) / 1e6 << "ms";
}

void SoundPlayer::Stop(unsigned run) {
    run_ = run;
    if (!playing_) return;
    Heard();
    DropSink();
    playing_ = false;
    feeding_.stop();
}

void SoundPlayer::Begin(long long sample) {
    course_.Begin(sample);
    handed_ = 0;
    heard_ = 0;
    unheard_.start();
    if (!OpenSink() || !FillSink()) DropSink();
}

bool SoundPlayer::OpenSink() {
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) return false;
    QAudioFormat format;
    format.setSampleRate(samplesPerSecond_);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    sink_ = std::make_unique<QAudioSink>(device, format);
    sink_->setBufferSize(format.bytesForDuration(kAheadMilliseconds * kMillisecondsPerSecond));
    input_ = sink_->start();
    return input_ != nullptr;
}

void SoundPlayer::DropSink() {
    input_ = nullptr;
    if (sink_ == nullptr) return;
    sink_->reset();
    // It lets events run when it goes, which may be for this player.
    sink_.release()->deleteLater();
}

bool SoundPlayer::FillSink() {
    // A stream that the sound system has ended takes less than nothing, and must not be written to.
    const qsizetype room = sink_->bytesFree();
    if (sink_->state() == QAudio::StoppedState || room < 0) return false;
    constexpr qsizetype kBytesPerSample = sizeof(std::int16_t);
    std::vector<std::int16_t> samples(static_cast<std::size_t>(room / kBytesPerSample));
    if (samples.empty()) return true;
    ring_->Read(course_.At(handed_), samples);
    const qint64 written =
        input_->write(reinterpret_cast<const char*>(samples.data()), static_cast<qint64>(samples.size()) * kBytesPerSample);
    if (written < 0) return false;
    handed_ += written / kBytesPerSample;
    return true;
}

void SoundPlayer::Feed() {
    if (sink_ == nullptr) {
        TellPassings();
        if (unheard_.elapsed() >= kRetryMilliseconds) Begin(static_cast<long long>(course_.At(Heard())));
    } else if (!FillSink()) {
        qCWarning(lcSound) << "the sound device has gone";
        TellPassings();
        const auto sample = static_cast<long long>(course_.At(heard_));
        DropSink();
        course_.Begin(sample);
        heard_ = 0;
        unheard_.start();
    } else {
        TellPassings();
    }
}

long long SoundPlayer::Heard() {
    long long heard = 0;
    if (sink_ == nullptr)
        heard = unheard_.elapsed() * samplesPerSecond_ / kMillisecondsPerSecond;
    else
        heard = std::min<long long>(sink_->processedUSecs() * samplesPerSecond_ / kMicrosecondsPerSecond, handed_);
    heard_ = std::max(heard_, heard);
    return heard_;
}

void SoundPlayer::TellPassings() {
    const long long heard = Heard();
    for (auto next = course_.Next(); next && next->played <= heard; next = course_.Next()) {
        course_.Tell(*next);
        passed_(next->event, run_);
    }
}

}  // namespace vatro
