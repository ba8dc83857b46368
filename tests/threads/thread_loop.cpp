// SPDX-License-Identifier: MIT
#include "threads/thread_loop.h"

#include <algorithm>

namespace vatro {

void Tasks::Queue(std::function<void()> task) {
    const std::lock_guard lock(mutex_);
    if (closed_) return;
    waiting_.push_back(std::move(task));
    changed_.notify_one();
}

std::optional<std::function<void()>> Tasks::Take(std::chrono::milliseconds patience) {
    std::unique_lock lock(mutex_);
    // Uses the system clock, because the sanitizer of GCC 12 does not track waits on the steady clock.
    const auto end = std::chrono::system_clock::now() + patience;
    if (patience.count() > 0) changed_.wait_until(lock, end, [this] { return closed_ || !waiting_.empty(); });
    if (waiting_.empty()) return std::nullopt;
    auto task = std::move(waiting_.front());
    waiting_.pop_front();
    return task;
}

void Tasks::Close() {
    const std::lock_guard lock(mutex_);
    closed_ = true;
    waiting_.clear();
    changed_.notify_all();
}

bool Tasks::Closed() const {
    const std::lock_guard lock(mutex_);
    return closed_;
}

std::vector<std::pair<const void*, std::function<void()>>>& ThreadLoop::Feeds() {
    thread_local std::vector<std::pair<const void*, std::function<void()>>> feeds;
    return feeds;
}

void ThreadLoop::Start(std::function<void()> atEnd) {
    thread_ = std::thread([tasks = tasks_, atEnd = std::move(atEnd)] {
        while (!tasks->Closed()) {
            const bool idle = Feeds().empty();
            if (const auto task = tasks->Take(std::chrono::milliseconds(idle ? 1000 : 0))) (*task)();
            // A feed may be removed while the feeds run, but none is added.
            const auto feeds = Feeds();
            for (const auto& feed : feeds) feed.second();
            std::this_thread::yield();
        }
        atEnd();
    });
}

bool ThreadLoop::End(std::chrono::milliseconds /*patience*/) {
    tasks_->Close();
    thread_.join();
    return true;
}

std::vector<std::int16_t> Speaker::Heard() const {
    const std::lock_guard lock(mutex);
    return heard;
}

bool SpeakerStream::Open(int samplesPerSecond) {
    if (gone_) return false;
    open_ = true;
    samplesPerSecond_ = samplesPerSecond;
    written_ = 0;
    return true;
}

std::optional<std::size_t> SpeakerStream::Room() {
    const std::lock_guard lock(speaker_->mutex);
    const auto room = speaker_->allowed - static_cast<long long>(speaker_->heard.size());
    gone_ = room <= 0 && speaker_->goes;
    if (gone_) return std::nullopt;
    // Does not divide usual buffer sizes, so reads wrap around the end of the buffer.
    constexpr long long kMost = 37;
    return static_cast<std::size_t>(std::clamp<long long>(room, 0, kMost));
}

std::optional<std::size_t> SpeakerStream::Write(std::span<const std::int16_t> samples) {
    const std::lock_guard lock(speaker_->mutex);
    speaker_->heard.insert(speaker_->heard.end(), samples.begin(), samples.end());
    written_ += static_cast<long long>(samples.size());
    return samples.size();
}

long long SpeakerStream::HeardMicroseconds() const {
    constexpr long long kPerSecond = 1'000'000;
    // Rounded up, because the player rounds down when it converts the time to samples.
    return (written_ * kPerSecond + samplesPerSecond_ - 1) / samplesPerSecond_;
}

void SpeakerStream::StartFeeding(std::function<std::chrono::milliseconds()> feed) {
    ThreadLoop::Feeds().emplace_back(this, std::move(feed));
}

void SpeakerStream::StopFeeding() {
    std::erase_if(ThreadLoop::Feeds(), [this](const auto& feed) { return feed.first == this; });
}

}  // namespace vatro
