// SPDX-License-Identifier: MIT
//
// Keeps the second copy of the logs up to date on a thread of its own, because a stick may take a minute to answer and the operator must
// not wait for it. The program's thread never touches the directory of the copy.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "datetime.h"
#include "second_copy.h"

namespace vatro {

/// How the copy stands.
struct CopyStatus {
    /// Whether a directory has been chosen.
    bool on = false;
    /// Whether every copy equals its log, as far as the thread knows.
    bool current = false;
    /// When that was last so, in universal time; nothing if not yet.
    std::optional<DateTime> good;
    /// If not current: why. Empty while the thread is at work.
    std::string reason;
    /// For how long the thread has been waiting for the disk.
    std::chrono::milliseconds busy{0};
    bool sameDisk = false;
};

/// All members except WriteBegins and WriteEnded may be called on the program's thread only.
class LiveCopy {
public:
    struct Options {
        /// Universal time. Called on the thread of the copy.
        std::function<DateTime()> universal;
        /// Runs on the thread of the copy when the status has changed, but not after End.
        std::function<void()> changed = [] {};
        /// How often the directory is looked for as long as a copy is missing or behind its log.
        std::chrono::milliseconds every{1000};
        /// And while every copy equals its log. A log that is written brings the next look at once.
        std::chrono::milliseconds everyAtRest{5000};
        /// After this the thread counts as hanging.
        std::chrono::milliseconds patience{2000};
    };

    explicit LiveCopy(Options options);
    /// Abandons the thread if it does not end at once.
    ~LiveCopy();
    LiveCopy(const LiveCopy&) = delete;
    LiveCopy& operator=(const LiveCopy&) = delete;

    /// From now on the thread works with `work`, which is used on it alone. Null turns the copy off. `adopt` takes the directory in use.
    /// A thread that has been waiting for its disk for `patience` is abandoned, and another one takes its place.
    void Follow(std::unique_ptr<CopyWork> work, bool adopt);
    /// A log is about to be written, or has been written, also if that failed. Calls come in pairs.
    void WriteBegins();
    void WriteEnded(const std::string& log);
    /// Odd while a log is being written. May be called on any thread, also after this object is gone.
    std::function<unsigned()> Writes() const;

    CopyStatus Status() const;
    /// How many contacts were found in copies since the last call that no log has.
    std::size_t TakeFound();
    /// Brings the copies up to date once more, then ends the thread. Returns false if that took longer than `patience`, or if an abandoned
    /// thread is still waiting; the thread is then in the middle of a call of the disk, so the process must end without destroying what it
    /// may use.
    bool End(std::chrono::milliseconds patience);

private:
    struct Shared;

    static void Run(const std::shared_ptr<Shared>& shared);
    void Abandon();

    std::shared_ptr<Shared> shared_;
    std::vector<std::shared_ptr<Shared>> abandoned_;
    bool started_ = false;
    bool ended_ = false;
};

}  // namespace vatro
