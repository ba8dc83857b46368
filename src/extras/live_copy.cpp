// SPDX-License-Identifier: MIT
#include "live_copy.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

namespace vatro {

using Steady = std::chrono::steady_clock;

/// Owned by both threads, because the thread of the copy may outlive its owner.
struct LiveCopy::Shared {
    explicit Shared(Options given) : options(std::move(given)) {}

    const Options options;
    std::atomic<unsigned> writes{0};

    std::mutex mutex;
    /// Something for the thread to do.
    std::condition_variable wake;
    /// The thread has ended.
    std::condition_variable over;
    /// A work that the thread has not taken yet.
    std::unique_ptr<CopyWork> next;
    bool replaced = false;
    bool adopt = false;
    bool on = false;
    std::set<std::string> changed;
    bool stop = false;
    /// The thread has been abandoned and must do nothing more.
    bool dropped = false;
    bool stopped = false;
    /// When the thread called the work that it has not come back from.
    std::optional<Steady::time_point> busySince;
    /// Whether that call brings over a change.
    bool copying = false;
    CopyOutcome last;
    std::optional<DateTime> good;
    std::size_t found = 0;
};

LiveCopy::LiveCopy(Options options) : shared_(std::make_shared<Shared>(std::move(options))) {}

LiveCopy::~LiveCopy() {
    End(std::chrono::milliseconds(0));
}

void LiveCopy::Follow(std::unique_ptr<CopyWork> work, bool adopt) {
    if (ended_) return;
    if (Status().busy >= shared_->options.patience) Abandon();
    {
        const std::scoped_lock lock(shared_->mutex);
        shared_->on = work != nullptr;
        shared_->next = std::move(work);
        // A directory that is still to be taken in use must not be forgotten when the logs are replaced at the same moment.
        shared_->adopt = adopt || (shared_->on && shared_->replaced && shared_->adopt);
        shared_->replaced = true;
        shared_->last = {};
        shared_->good.reset();
        if (!shared_->on && !started_) return;
    }
    shared_->wake.notify_one();
    if (!std::exchange(started_, true)) std::thread(Run, shared_).detach();
}

void LiveCopy::Abandon() {
    {
        const std::scoped_lock lock(shared_->mutex);
        shared_->stop = true;
        shared_->dropped = true;
    }
    abandoned_.push_back(shared_);
    shared_ = std::make_shared<Shared>(abandoned_.back()->options);
    started_ = false;
}

void LiveCopy::WriteBegins() {
    ++shared_->writes;
}

void LiveCopy::WriteEnded(const std::string& log) {
    ++shared_->writes;
    {
        const std::scoped_lock lock(shared_->mutex);
        if (!shared_->on) return;
        shared_->changed.insert(log);
    }
    shared_->wake.notify_one();
}

std::function<unsigned()> LiveCopy::Writes() const {
    return [shared = shared_] { return shared->writes.load(); };
}

CopyStatus LiveCopy::Status() const {
    const std::scoped_lock lock(shared_->mutex);
    CopyStatus status;
    status.on = shared_->on;
    status.current = shared_->last.done && shared_->changed.empty() && !shared_->copying;
    status.good = shared_->good;
    status.reason = shared_->last.reason;
    status.sameDisk = shared_->last.sameDisk;
    if (shared_->busySince) status.busy = std::chrono::duration_cast<std::chrono::milliseconds>(Steady::now() - *shared_->busySince);
    return status;
}

std::size_t LiveCopy::TakeFound() {
    const std::scoped_lock lock(shared_->mutex);
    return std::exchange(shared_->found, 0);
}

bool LiveCopy::End(std::chrono::milliseconds patience) {
    if (std::exchange(ended_, true)) return true;
    const bool all = std::all_of(abandoned_.begin(), abandoned_.end(), [](const auto& shared) {
        const std::scoped_lock lock(shared->mutex);
        return shared->stopped;
    });
    if (!started_) return all;
    std::unique_lock lock(shared_->mutex);
    shared_->stop = true;
    shared_->wake.notify_one();
    return shared_->over.wait_for(lock, patience, [this] { return shared_->stopped; }) && all;
}

void LiveCopy::Run(const std::shared_ptr<Shared>& shared) {
    std::unique_ptr<CopyWork> work;
    std::unique_lock lock(shared->mutex);
    while (true) {
        const auto due = [&] { return shared->replaced || !shared->changed.empty() || shared->stop; };
        shared->wake.wait_for(lock, shared->last.done ? shared->options.everyAtRest : shared->options.every, due);
        // The last round brings over what the end of the program has written.
        const bool last = shared->stop;
        if (std::exchange(shared->replaced, false)) work = std::move(shared->next);
        const bool adopt = std::exchange(shared->adopt, false);
        const std::set<std::string> changed = std::exchange(shared->changed, {});
        if (work != nullptr) {
            shared->busySince = Steady::now();
            shared->copying = adopt || !changed.empty();
            lock.unlock();
            CopyOutcome outcome = adopt ? work->Adopt() : work->Update(changed);
            const DateTime now = shared->options.universal();
            lock.lock();
            shared->busySince.reset();
            if (shared->dropped) break;
            shared->copying = false;
            shared->found += outcome.found;
            const bool news = outcome.done != shared->last.done || outcome.reason != shared->last.reason || !changed.empty() || adopt;
            // The directory may have been changed or turned off in the meantime.
            if (!shared->replaced) {
                if (outcome.done && news) shared->good = now;
                shared->last = std::move(outcome);
            }
            // After End the program may be gone.
            if (news && !shared->stop) {
                lock.unlock();
                shared->options.changed();
                lock.lock();
            }
        }
        if (last) break;
    }
    work.reset();
    shared->stopped = true;
    shared->over.notify_all();
}

}  // namespace vatro
