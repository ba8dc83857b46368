// SPDX-License-Identifier: MIT
//
// Keeps every other copy of the program away from a log directory: copies of other users, and of other machines that share the
// directory. Two copies would give out the same serial numbers, and a correction in one would undo the other's contacts.
//
// The lock is one of the system on the file "vatro.lock". Where the file system keeps none, as some network shares, the copy that
// has the directory writes the file "vatro.puls" every 15 seconds, and one that finds it silent for 60 seconds asks.
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <string>
#include <thread>

#include "lock_file.h"

namespace vatro {

class DirectoryLock {
public:
    enum class Result {
        Won,
        Taken,
        /// Somebody has had the directory without giving it back, and has not been heard of for 60 seconds.
        Silent,
        /// There is no place for a lock, as in a directory that may only be read; nobody else can have one either.
        Unavailable,
    };

    struct Options {
        std::function<LockResult(LockFile&, const std::filesystem::path&)> lock = [](LockFile& file, const std::filesystem::path& path) {
            return file.Acquire(path);
        };
        std::chrono::milliseconds beat{15'000};
        std::chrono::milliseconds silence{60'000};
    };

    explicit DirectoryLock(Options options);
    DirectoryLock() : DirectoryLock(Options{}) {}
    /// Releases.
    ~DirectoryLock();
    DirectoryLock(const DirectoryLock&) = delete;
    DirectoryLock& operator=(const DirectoryLock&) = delete;

    /// Takes the directory; with `evenIfSilent` also one whose holder is silent. What is held is released first.
    Result Acquire(const std::filesystem::path& directory, bool evenIfSilent = false);
    void Release() noexcept;
    /// Whether another copy has taken the directory over while this one was silent, as a machine that slept.
    bool Lost() const { return lost_; }

private:
    Result AcquireByPulse(bool evenIfSilent);
    void Beat();

    Options options_;
    LockFile file_;
    std::filesystem::path pulse_;
    /// What this copy writes, unlike any other.
    std::string name_;
    std::atomic<bool> lost_{false};
    std::jthread beating_;
};

}  // namespace vatro
