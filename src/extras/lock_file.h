// SPDX-License-Identifier: MIT
//
// A lock that the system keeps on an open file and gives up by itself when the process ends, however it ends. What is in the
// file says nothing. lock_file_posix.cpp and lock_file_windows.cpp are the two systems.
#pragma once

#include <cstdint>
#include <filesystem>

namespace vatro {

enum class LockResult {
    Won,
    /// Another process has it, of this user or of another, here or on another machine.
    Taken,
    /// The file system keeps no locks.
    NotSupported,
    /// The file can be neither created nor opened, as in a directory that may only be read.
    Unavailable,
};

class LockFile {
public:
    LockFile() = default;
    ~LockFile() { Release(); }
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    /// Creates the file if it is missing, for every user to open, and locks it. It stays when the lock is released: removing it
    /// could let two processes lock two files of the same name.
    LockResult Acquire(const std::filesystem::path& file);
    void Release() noexcept;

private:
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t handle_ = kNone;
};

}  // namespace vatro
