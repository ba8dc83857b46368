// SPDX-License-Identifier: MIT
//
// An operating system lock on an open file. The system releases it when the process ends, however it ends. The content of the file is
// irrelevant. Implemented by lock_file_posix.cpp and lock_file_windows.cpp.
#pragma once

#include <cstdint>
#include <filesystem>

namespace vatro {

/// The result of trying to get the lock.
enum class LockResult {
    Won,
    /// Another process holds the lock; it may belong to another user or run on another machine.
    Taken,
    /// The file system does not support locks.
    NotSupported,
    /// The file can be neither created nor opened, for example in a read-only directory.
    Unavailable,
};

/// Holds at most one lock; the destructor releases it.
class LockFile {
public:
    LockFile() = default;
    ~LockFile() { Release(); }
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

    /// Creates the file if it is missing, so that every user may open it, and locks it. The file is not removed when the lock is
    /// released, because then two processes could lock two different files of the same name.
    LockResult Acquire(const std::filesystem::path& file);
    /// Gives up the lock, if it is held.
    void Release() noexcept;

private:
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t handle_ = kNone;
};

}  // namespace vatro
