// SPDX-License-Identifier: MIT
//
// Keeps other copies of the program out of a log directory, including those of other users and of other machines that share it. Two
// copies would give out the same serial numbers, and a correction in one would undo contacts logged in the other.
//
// The lock is an operating system lock on the file "vatro.lock". Some file systems, such as some network shares, do not support locks.
// There the copy that owns the directory writes the file "vatro.puls" every 15 seconds. A copy that finds this file unchanged for 60
// seconds asks the operator whether to take the directory over.
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>

#include "lock_file.h"

namespace vatro {

/// The lock on one directory at a time. While it is held by pulse, a thread writes the pulse file.
class DirectoryLock {
public:
    enum class Result {
        /// The directory is now held by this object.
        Won,
        /// Another copy holds the directory.
        Taken,
        /// The directory was not released, but its holder has not written the pulse file for 60 seconds.
        Silent,
        /// No lock can be created, for example in a read-only directory; no other copy can hold one there either.
        Unavailable,
    };

    /// The kind of lock and the intervals; tests replace them.
    struct Options {
        std::function<LockResult(LockFile&, const std::filesystem::path&)> lock = [](LockFile& file, const std::filesystem::path& path) {
            return file.Acquire(path);
        };
        /// How often the pulse file is written.
        std::chrono::milliseconds beat{15'000};
        /// How long the pulse file may stay unchanged before its holder counts as silent.
        std::chrono::milliseconds silence{60'000};
    };

    explicit DirectoryLock(Options options);
    DirectoryLock() : DirectoryLock(Options{}) {}
    /// Releases the directory.
    ~DirectoryLock();
    DirectoryLock(const DirectoryLock&) = delete;
    DirectoryLock& operator=(const DirectoryLock&) = delete;

    /// Acquires the directory, even from a silent holder if `evenIfSilent` is true. First releases any directory that is held.
    Result Acquire(const std::filesystem::path& directory, bool evenIfSilent = false);
    /// Releases the directory, if one is held. Does not remove a pulse file that another copy has taken over.
    void Release() noexcept;
    /// Whether another copy has taken over the directory while this one was silent, for example while the machine slept.
    bool Lost() const { return lost_; }

private:
    Result AcquireByPulse(bool evenIfSilent);
    void Beat();

    Options options_;
    LockFile file_;
    std::filesystem::path pulse_;
    /// Unique text that this copy writes into "vatro.puls".
    std::string name_;
    std::atomic<bool> lost_{false};
    std::jthread beating_;
};

}  // namespace vatro
