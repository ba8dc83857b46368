// SPDX-License-Identifier: MIT
//
// The stream of a player, through Qt Multimedia. Lives on the sound thread.
#pragma once

#include <QTimer>

#include "sound_player.h"

class QAudioSink;
class QIODevice;

namespace vatro {

class QtSoundStream : public SoundStream {
public:
    /// Whether there is an output device. Asks the sound system, which may take some time.
    static bool DeviceThere();

    explicit QtSoundStream(std::function<void()> opened);
    ~QtSoundStream() override;
    QtSoundStream(const QtSoundStream&) = delete;
    QtSoundStream& operator=(const QtSoundStream&) = delete;

    bool Open(int samplesPerSecond) override;
    void Drop() override;
    bool IsOpen() const override { return sink_ != nullptr; }
    std::optional<std::size_t> Room() override;
    std::optional<std::size_t> Write(std::span<const std::int16_t> samples) override;
    long long HeardMicroseconds() const override;
    void StartFeeding(std::function<std::chrono::milliseconds()> feed) override;
    void StopFeeding() override;
    void TellStarted(std::chrono::nanoseconds sinceAsked) override;
    void TellGone() override;

private:
    /// Null while no output device is open.
    std::unique_ptr<QAudioSink> sink_;
    QIODevice* input_ = nullptr;
    std::function<void()> opened_;
    std::function<std::chrono::milliseconds()> feed_;
    QTimer feeding_;
};

}  // namespace vatro
