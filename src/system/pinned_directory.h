// SPDX-License-Identifier: MIT
//
// A directory that stays the same one while files in it are used. A removable volume may be unmounted at any moment, and its mount point
// is then an ordinary directory, often an empty one of another disk: a path that was checked a moment ago may lead somewhere else.
//
// Implemented by pinned_directory_posix.cpp and pinned_directory_windows.cpp. On Windows a volume takes its paths with it when it goes,
// so there the path itself is used.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace vatro {

/// Holds at most one directory open; the destructor lets it go. While it is held, its volume cannot be unmounted in the ordinary way, so
/// hold it only for as long as files in it are in use.
class PinnedDirectory {
public:
    PinnedDirectory() = default;
    ~PinnedDirectory() { Release(); }
    PinnedDirectory(const PinnedDirectory&) = delete;
    PinnedDirectory& operator=(const PinnedDirectory&) = delete;

    /// Opens the directory, and lets go of the one held before. Returns 0 or the error number.
    int Hold(const std::filesystem::path& directory);
    void Release() noexcept;
    /// The path by which to reach the directory that is held, whatever is mounted since. Only for this process.
    const std::filesystem::path& Path() const { return path_; }

private:
    static constexpr std::intptr_t kNone = -1;
    std::intptr_t handle_ = kNone;
    std::filesystem::path path_;
};

}  // namespace vatro
