// SPDX-License-Identifier: MIT
//
// Lets a test that runs as root meet the protection of files like any other user.
#pragma once

#include <sys/fsuid.h>
#include <unistd.h>

#include <filesystem>

namespace vatro {

/// While this object lives, the calling thread has no more rights on files than the owner of a directory, who is nobody if the thread is
/// root's. Without root it does nothing. What is above the directory must be open to everybody.
class WithoutRoot {
public:
    /// Root gives the directory to nobody.
    explicit WithoutRoot(const std::filesystem::path& directory) : root_(geteuid() == 0) {
        if (!root_) return;
        given_ = chown(directory.c_str(), kNobody, kNobody) == 0;
        // The kernel takes the thread's power over files away with its number.
        setfsuid(kNobody);
    }
    ~WithoutRoot() {
        if (root_) setfsuid(0);
    }
    WithoutRoot(const WithoutRoot&) = delete;
    WithoutRoot& operator=(const WithoutRoot&) = delete;

    /// Whether the thread has no power over files now.
    bool Holds() const { return !root_ || (given_ && setfsuid(kNobody) == static_cast<int>(kNobody)); }

private:
    static constexpr uid_t kNobody = 65534;
    bool root_;
    bool given_ = false;
};

}  // namespace vatro
