// SPDX-License-Identifier: MIT
//
// A stick for tests: a small volume that can be pulled out, brought back and filled while a process uses it.
#pragma once

#include <filesystem>

namespace vatro {

/// Mounts a volume in memory. If this process may not mount, a directory stands for the volume, which is renamed to pull it and never
/// fills.
class Stick {
public:
    /// `directory` must be empty; the mount point and the volume are made in it.
    explicit Stick(const std::filesystem::path& directory);
    ~Stick();
    Stick(const Stick&) = delete;
    Stick& operator=(const Stick&) = delete;

    /// Where the process finds the stick.
    const std::filesystem::path& MountPoint() const { return point_; }
    /// Where the test finds its content, also while it is pulled.
    const std::filesystem::path& Content() const { return pulled_ && !mounts_ ? aside_ : volume_; }
    bool Mounts() const { return mounts_; }

    /// Pulls the stick at once, in the middle of whatever is going on; an empty mount point stays behind.
    void Pull();
    void BringBack();
    bool Pulled() const { return pulled_; }
    /// Takes all the room there is, and gives it back.
    void Fill();
    void MakeRoom();

private:
    std::filesystem::path point_;
    std::filesystem::path volume_;
    std::filesystem::path aside_;
    bool mounts_ = false;
    bool pulled_ = false;
};

}  // namespace vatro
