// SPDX-License-Identifier: MIT
//
// The sound thread for the tests, made with the standard library, and a sound system that takes no time.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "sound_player.h"
#include "sound_thread.h"

namespace vatro {

/// How long a test waits for another thread before it fails.
inline constexpr std::chrono::milliseconds kPatience{20'000};

/// The tasks that were posted to a thread and not yet run.
class Tasks {
public:
    void Queue(std::function<void()> task);
    /// Waits for a task and takes it. Returns nothing if none arrives in this time, or after Close.
    std::optional<std::function<void()>> Take(std::chrono::milliseconds patience);
    /// Drops the waiting tasks and accepts no more.
    void Close();
    bool Closed() const;

private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> waiting_;
    bool closed_ = false;
};

/// Runs the registered feeds between two tasks, as fast as it can.
class ThreadLoop : public SoundLoop {
public:
    void Start(std::function<void()> atEnd) override;
    void Queue(std::function<void()> task) override { tasks_->Queue(std::move(task)); }
    /// Waits without a limit; the test runner ends a test that hangs.
    bool End(std::chrono::milliseconds patience) override;

    /// The feeds of the streams on the calling thread.
    static std::vector<std::pair<const void*, std::function<void()>>>& Feeds();

private:
    std::shared_ptr<Tasks> tasks_ = std::make_shared<Tasks>();
    std::thread thread_;
};

/// The state of the sound system, shared by the threads.
struct Speaker {
    /// The samples handed over, in order.
    std::vector<std::int16_t> Heard() const;

    mutable std::mutex mutex;
    std::vector<std::int16_t> heard;
    /// How many samples are accepted in all. A sample is heard as soon as it is accepted.
    long long allowed = 0;
    /// Once the allowed samples were heard, the device disappears for good.
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
    void StartFeeding(std::function<std::chrono::milliseconds()> feed) override;
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
