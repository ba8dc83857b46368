// SPDX-License-Identifier: MIT
#include "sound_stream.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QLoggingCategory>
#include <QMediaDevices>
#include <utility>

namespace vatro {

namespace {

Q_LOGGING_CATEGORY(lcSound, "vatro.sound", QtWarningMsg)

/// How far the sound system is kept ahead of what is heard: enough for a busy machine, yet short compared with the half second between
/// refills.
constexpr int kAheadMilliseconds = 150;
constexpr qint64 kMicrosecondsPerMillisecond = 1000;
constexpr int kSampleBytes = sizeof(std::int16_t);

}  // namespace

bool QtSoundStream::DeviceThere() {
    return !QMediaDevices::defaultAudioOutput().isNull();
}

QtSoundStream::QtSoundStream(std::function<void()> opened) : opened_(std::move(opened)) {
    feeding_.setTimerType(Qt::PreciseTimer);
    feeding_.setSingleShot(true);
    QObject::connect(&feeding_, &QTimer::timeout, &feeding_, [this] { feeding_.start(feed_()); });
}

QtSoundStream::~QtSoundStream() {
    feeding_.stop();
    if (sink_ != nullptr) sink_->reset();
}

bool QtSoundStream::Open(int samplesPerSecond) {
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) return false;
    QAudioFormat format;
    format.setSampleRate(samplesPerSecond);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    sink_ = std::make_unique<QAudioSink>(device, format);
    sink_->setBufferSize(format.bytesForDuration(kAheadMilliseconds * kMicrosecondsPerMillisecond));
    input_ = sink_->start();
    opened_();
    return input_ != nullptr;
}

void QtSoundStream::Drop() {
    input_ = nullptr;
    if (sink_ == nullptr) return;
    sink_->reset();
    // Delete the sink later, because its destructor processes events, possibly for this player.
    sink_.release()->deleteLater();
}

std::optional<std::size_t> QtSoundStream::Room() {
    // If the sound system has stopped the stream, bytesFree is negative and the stream must not be written to.
    const qsizetype room = sink_->bytesFree();
    if (sink_->state() == QAudio::StoppedState || room < 0) return std::nullopt;
    return static_cast<std::size_t>(room / kSampleBytes);
}

std::optional<std::size_t> QtSoundStream::Write(std::span<const std::int16_t> samples) {
    const qint64 written = input_->write(reinterpret_cast<const char*>(samples.data()), static_cast<qint64>(samples.size()) * kSampleBytes);
    if (written < 0) return std::nullopt;
    return static_cast<std::size_t>(written / kSampleBytes);
}

long long QtSoundStream::HeardMicroseconds() const {
    return sink_->processedUSecs();
}

void QtSoundStream::StartFeeding(std::function<std::chrono::milliseconds()> feed) {
    feed_ = std::move(feed);
    feeding_.start(0);
}

void QtSoundStream::StopFeeding() {
    feeding_.stop();
}

void QtSoundStream::TellStarted(std::chrono::nanoseconds sinceAsked) {
    qCDebug(lcSound) << "first samples after" << static_cast<double>(sinceAsked.count()) / 1e6 << "ms";
}

void QtSoundStream::TellGone() {
    qCWarning(lcSound) << "the sound device has gone";
}

}  // namespace vatro
