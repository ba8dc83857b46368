// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "pinned_directory.h"

namespace vatro {

int PinnedDirectory::Hold(const std::filesystem::path& directory) {
    Release();
    int descriptor = -1;
    do descriptor = open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    while (descriptor < 0 && errno == EINTR);
    if (descriptor < 0) return errno;
    handle_ = descriptor;
    // The kernel resolves this name to the open directory itself, even if nothing is mounted there any more.
    path_ = "/proc/self/fd/" + std::to_string(descriptor);
    return 0;
}

void PinnedDirectory::Release() noexcept {
    if (handle_ == kNone) return;
    close(static_cast<int>(handle_));
    handle_ = kNone;
    path_.clear();
}

}  // namespace vatro
