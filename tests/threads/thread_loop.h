// SPDX-License-Identifier: MIT
//
// The sound thread of the tests: one of the standard library's, with a sound system in which nothing takes time.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "sound_player.h"
#include "sound_thread.h"

namespace vatro {

/// What has been posted to a thread and not been done.
class Tasks {
public:
    void Queue(std::function<void()> task);
    /// Waits for a task and takes it; nothing if none comes in this time, or after Close.
    std::optional<std::function<void()>> Take(std::chrono::milliseconds patience);
    /// What waits is dropped, and nothing is taken any more.
    void Close();
    bool Closed() const;

private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    bool closed_ = false;
};

/// Feeds whoever wants it between two tasks, as fast as it can.
class ThreadLoop : public SoundLoop {
public:
    void Start(std::function<void()> atEnd) override;
    void Queue(std::function<void()> task) override { tasks_->Queue(std::move(task)); }
    /// Waits as long as it takes: a test that hangs is ended by its runner.
    bool End(std::chrono::milliseconds patience) override;

    /// The feeds of the streams on the thread that asks.
    static std::vector<std::pair<const void*, std::function<void()>>>& Feeds();

private:
    std::shared_ptr<Tasks> tasks_ = std::make_shared<Tasks>();
    std::thread thread_;
};

/// What a sound system has been told and lets happen, between the threads.
struct Speaker {
    /// What has been handed over, in its order.
    std::vector<std::int16_t> Heard() const;

    mutable std::mutex mutex;
    std::vector<std::int16_t> heard;
    /// So many samples are taken in all, and are heard when they are taken.
    long long allowed = 0;
    /// Once that has been heard the device goes, and does not come back.
    bool goes = false;
};

class SpeakerStream : public SoundStream {
public:
    explicit SpeakerStream(std::shared_ptr<Speaker> speaker) : speaker_(std::move(speaker)) {}
    ~SpeakerStream() override { StopFeeding(); }
    SpeakerStream(const SpeakerStream&) = delete;
    SpeakerStream& operator=(const SpeakerStream&) = delete;

    bool Open(int samplesPerSecond) override;
    void Drop() override { open_ = false; }
    bool IsOpen() const override { return open_; }
    std::optional<std::size_t> Room() override;
    std::optional<std::size_t> Write(std::span<const std::int16_t> samples) override;
    long long HeardMicroseconds() const override;
    void StartFeeding(std::function<void()> feed) override;
    void StopFeeding() override;
    void TellStarted(std::chrono::nanoseconds /*sinceAsked*/) override {}
    void TellGone() override {}

private:
    std::shared_ptr<Speaker> speaker_;
    bool open_ = false;
    bool gone_ = false;
    int samplesPerSecond_ = 0;
    long long written_ = 0;
};

}  // namespace vatro
